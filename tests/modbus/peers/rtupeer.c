/*
 * RTU slave built on Debian's libmodbus, an independent peer for the tests
 * and the benchmark of our master.
 *
 *   modbus-rtu-peer [--slave N] [--pty | DEVICE]
 *
 * --pty creates a pseudo-terminal, prints the path of its slave side on the
 * first line of stdout and serves on the master side; otherwise DEVICE is
 * opened as a serial line (115200 8N1).
 *
 * Map (1024 of each table): holding register i = 0x1000 + i, input register
 * i = 0x2000 + i, coil i = i % 2, discrete input i = (i % 3 == 0).
 * On demand, by the start address of any request (above the map):
 *   0x7F00 + c  -> exception c (0x7F06: busy, 0x7F01: illegal function...)
 *   0x7E00 + n  -> served as address 0, n * 10 ms late
 */
#define _GNU_SOURCE
#include <errno.h>
#include <fcntl.h>
#include <modbus.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <termios.h>
#include <time.h>
#include <unistd.h>

#define TABLE_SIZE 1024

static int open_pty(char *path, size_t size, int *keep_slave)
{
    struct termios tios;
    int master = posix_openpt(O_RDWR | O_NOCTTY);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0)
        return -1;
    if (ptsname_r(master, path, size) != 0)
        return -1;
    /* Holding the slave side open keeps the master readable while the
     * master under test opens and closes the line. */
    *keep_slave = open(path, O_RDWR | O_NOCTTY);
    if (*keep_slave >= 0 && tcgetattr(*keep_slave, &tios) == 0) {
        cfmakeraw(&tios);
        tcsetattr(*keep_slave, TCSANOW, &tios);
    }
    if (tcgetattr(master, &tios) == 0) {
        cfmakeraw(&tios);
        tcsetattr(master, TCSANOW, &tios);
    }
    return master;
}

static void sleep_ms(int ms)
{
    struct timespec ts;
    ts.tv_sec = ms / 1000;
    ts.tv_nsec = (long)(ms % 1000) * 1000000L;
    while (nanosleep(&ts, &ts) != 0 && errno == EINTR) {
    }
}

int main(int argc, char **argv)
{
    int slave = 1;
    int use_pty = 0;
    const char *device = NULL;
    char path[128];
    int keep_slave = -1;
    modbus_t *ctx;
    modbus_mapping_t *map;
    uint8_t query[MODBUS_RTU_MAX_ADU_LENGTH];
    int i;

    for (i = 1; i < argc; ++i) {
        if (strcmp(argv[i], "--slave") == 0 && i + 1 < argc)
            slave = atoi(argv[++i]);
        else if (strcmp(argv[i], "--pty") == 0)
            use_pty = 1;
        else
            device = argv[i];
    }
    if (!use_pty && !device) {
        fprintf(stderr, "usage: %s [--slave N] [--pty | DEVICE]\n", argv[0]);
        return 2;
    }

    if (use_pty) {
        int master = open_pty(path, sizeof path, &keep_slave);
        if (master < 0) {
            perror("pty");
            return 1;
        }
        ctx = modbus_new_rtu(path, 115200, 'N', 8, 1);
        if (!ctx || modbus_set_socket(ctx, master) != 0) {
            fprintf(stderr, "context: %s\n", modbus_strerror(errno));
            return 1;
        }
    } else {
        ctx = modbus_new_rtu(device, 115200, 'N', 8, 1);
        if (!ctx || modbus_connect(ctx) != 0) {
            fprintf(stderr, "connect %s: %s\n", device, modbus_strerror(errno));
            return 1;
        }
    }
    modbus_set_slave(ctx, slave);

    map = modbus_mapping_new(TABLE_SIZE, TABLE_SIZE, TABLE_SIZE, TABLE_SIZE);
    if (!map)
        return 1;
    for (i = 0; i < TABLE_SIZE; ++i) {
        map->tab_registers[i] = (uint16_t)(0x1000 + i);
        map->tab_input_registers[i] = (uint16_t)(0x2000 + i);
        map->tab_bits[i] = (uint8_t)(i % 2);
        map->tab_input_bits[i] = (uint8_t)(i % 3 == 0);
    }

    if (use_pty) {
        printf("%s\n", path);
        fflush(stdout);
    }

    for (;;) {
        int rc = modbus_receive(ctx, query);
        int function, address;
        if (rc == 0)
            continue; /* for another slave */
        if (rc < 0) {
            if (errno == EBADF || errno == EIO)
                break;
            continue; /* bad CRC, cut frame: wait for the next request */
        }
        function = query[1];
        address = rc >= 4 ? (query[2] << 8 | query[3]) : -1;
        if (function != MODBUS_FC_REPORT_SLAVE_ID && (address & 0xFF00) == 0x7F00) {
            modbus_reply_exception(ctx, query, address & 0xFF);
            continue;
        }
        if (function != MODBUS_FC_REPORT_SLAVE_ID && (address & 0xFF00) == 0x7E00) {
            sleep_ms((address & 0xFF) * 10);
            query[2] = 0;
            query[3] = 0;
        }
        modbus_reply(ctx, query, rc, map);
    }
    modbus_mapping_free(map);
    modbus_free(ctx);
    if (keep_slave >= 0)
        close(keep_slave);
    return 0;
}
