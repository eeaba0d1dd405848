/*
 * Reference client for the benchmark: reads 2 holding registers in a loop
 * with Debian's libmodbus and prints "<reads> <seconds>".
 *
 *   bench_libmodbus_client DEVICE SECONDS      (timed run)
 *   bench_libmodbus_client DEVICE -n COUNT     (fixed count, for callgrind)
 */
#include <errno.h>
#include <modbus.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

static double now(void)
{
    struct timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return ts.tv_sec + ts.tv_nsec / 1e9;
}

/* Kept out of line so that callgrind can count it alone. */
__attribute__((noinline)) long client_loop(modbus_t *ctx, long count, double seconds)
{
    uint16_t regs[2];
    long done = 0;
    const double end = now() + seconds;
    while (count > 0 ? done < count : now() < end) {
        if (modbus_read_registers(ctx, 0, 2, regs) != 2) {
            fprintf(stderr, "read: %s\n", modbus_strerror(errno));
            return -1;
        }
        ++done;
    }
    return done;
}

int main(int argc, char **argv)
{
    modbus_t *ctx;
    long count = 0;
    double seconds = 3, start, elapsed;
    long done;
    if (argc < 3) {
        fprintf(stderr, "usage: %s DEVICE SECONDS | DEVICE -n COUNT\n", argv[0]);
        return 2;
    }
    if (strcmp(argv[2], "-n") == 0 && argc > 3)
        count = atol(argv[3]);
    else
        seconds = atof(argv[2]);
    ctx = modbus_new_rtu(argv[1], 115200, 'N', 8, 1);
    if (!ctx || modbus_connect(ctx) != 0) {
        fprintf(stderr, "connect: %s\n", modbus_strerror(errno));
        return 1;
    }
    modbus_set_slave(ctx, 1);
    start = now();
    done = client_loop(ctx, count, seconds);
    elapsed = now() - start;
    printf("%ld %.6f\n", done, elapsed);
    modbus_close(ctx);
    modbus_free(ctx);
    return done < 0;
}
