#!/bin/sh
# Builds the Modbus fuzz targets with clang and runs each for SECONDS
# (default 60) on a copy of the seed corpus. Crashes land in build-fuzz/.
set -eu
cd "$(dirname "$0")/.."
SECONDS_EACH=${1:-60}
BUILD=build-fuzz
TARGETS="fuzz_rtu_receive fuzz_ascii_receive fuzz_report_slave_id"

cmake -S . -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
    -DREGDESK_FUZZ=ON -DREGDESK_BUILD_TESTS=OFF >/dev/null
cmake --build "$BUILD" -j2 --target $TARGETS

for t in $TARGETS; do
    mkdir -p "$BUILD/corpus/$t" "$BUILD/artifacts/$t"
    cp -n fuzz/corpus/$t/* "$BUILD/corpus/$t/" 2>/dev/null || true
    echo "== $t: $SECONDS_EACH s"
    "$BUILD/fuzz/$t" -max_total_time="$SECONDS_EACH" -max_len=1200 -timeout=5 -rss_limit_mb=1024 \
        -artifact_prefix="$BUILD/artifacts/$t/" -print_final_stats=1 "$BUILD/corpus/$t"
done
