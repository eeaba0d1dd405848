/*
 * Modbus RTU master built on Debian's libmodbus alone: an independent peer
 * that checks the simulator's standard functions.
 *
 *   sim-client DEVICE SLAVE OP...
 *
 * Operations, each answered by one line on stdout:
 *   r1:ADDR:N r2:ADDR:N       bits            -> "ok b0 b1 ..."
 *   r3:ADDR:N r4:ADDR:N       registers       -> "ok hhhh hhhh ..." (hex)
 *   w5:ADDR:V w6:ADDR:V       single writes   -> "ok"
 *   w15:ADDR:V,V,... w16:ADDR:V,V,...          -> "ok"
 *   id                        function 17     -> "ok hh hh ..." (hex)
 * A failure prints "exc N" for exception N, "timeout", or "err TEXT".
 */
#include <errno.h>
#include <modbus.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void report_error(void)
{
    if (errno > MODBUS_ENOBASE && errno < MODBUS_ENOBASE + MODBUS_EXCEPTION_MAX)
        printf("exc %d\n", errno - MODBUS_ENOBASE);
    else if (errno == ETIMEDOUT)
        printf("timeout\n");
    else
        printf("err %s\n", modbus_strerror(errno));
}

static int parse_list(const char *text, int *values, int max)
{
    int n = 0;
    char *end;
    while (*text && n < max) {
        values[n++] = (int)strtol(text, &end, 0);
        if (*end != ',')
            break;
        text = end + 1;
    }
    return n;
}

static void run(modbus_t *ctx, const char *op)
{
    char kind[8] = {0};
    int addr = 0, n = 0, i, rc;
    const char *rest;
    uint8_t bits[2000];
    uint16_t regs[125];
    int values[125];

    if (strcmp(op, "id") == 0) {
        uint8_t dest[MODBUS_MAX_PDU_LENGTH];
        rc = modbus_report_slave_id(ctx, MODBUS_MAX_PDU_LENGTH, dest);
        if (rc < 0) {
            report_error();
            return;
        }
        printf("ok");
        for (i = 0; i < rc && i < MODBUS_MAX_PDU_LENGTH; ++i)
            printf(" %02x", dest[i]);
        printf("\n");
        return;
    }
    if (sscanf(op, "%7[^:]:%i", kind, &addr) != 2) {
        printf("err bad operation %s\n", op);
        return;
    }
    rest = strchr(strchr(op, ':') + 1, ':');
    rest = rest ? rest + 1 : "";
    if (kind[0] == 'r') {
        n = atoi(rest);
        if (strcmp(kind, "r1") == 0 || strcmp(kind, "r2") == 0) {
            rc = kind[1] == '1' ? modbus_read_bits(ctx, addr, n, bits) : modbus_read_input_bits(ctx, addr, n, bits);
            if (rc < 0) {
                report_error();
                return;
            }
            printf("ok");
            for (i = 0; i < rc; ++i)
                printf(" %d", bits[i]);
        } else {
            rc = kind[1] == '3' ? modbus_read_registers(ctx, addr, n, regs)
                                : modbus_read_input_registers(ctx, addr, n, regs);
            if (rc < 0) {
                report_error();
                return;
            }
            printf("ok");
            for (i = 0; i < rc; ++i)
                printf(" %04x", regs[i]);
        }
        printf("\n");
        return;
    }
    n = parse_list(rest, values, 125);
    if (strcmp(kind, "w5") == 0)
        rc = modbus_write_bit(ctx, addr, values[0]);
    else if (strcmp(kind, "w6") == 0)
        rc = modbus_write_register(ctx, addr, values[0]);
    else if (strcmp(kind, "w15") == 0) {
        for (i = 0; i < n; ++i)
            bits[i] = (uint8_t)values[i];
        rc = modbus_write_bits(ctx, addr, n, bits);
    } else if (strcmp(kind, "w16") == 0) {
        for (i = 0; i < n; ++i)
            regs[i] = (uint16_t)values[i];
        rc = modbus_write_registers(ctx, addr, n, regs);
    } else {
        printf("err bad operation %s\n", op);
        return;
    }
    if (rc < 0)
        report_error();
    else
        printf("ok\n");
}

int main(int argc, char **argv)
{
    modbus_t *ctx;
    int i;
    if (argc < 4) {
        fprintf(stderr, "usage: %s DEVICE SLAVE OP...\n", argv[0]);
        return 2;
    }
    ctx = modbus_new_rtu(argv[1], 9600, 'N', 8, 1);
    if (!ctx || modbus_set_slave(ctx, atoi(argv[2])) != 0 || modbus_connect(ctx) != 0) {
        fprintf(stderr, "cannot open %s: %s\n", argv[1], modbus_strerror(errno));
        return 1;
    }
    modbus_set_response_timeout(ctx, 0, 500000);
    for (i = 3; i < argc; ++i) {
        run(ctx, argv[i]);
        fflush(stdout);
    }
    modbus_close(ctx);
    modbus_free(ctx);
    return 0;
}
