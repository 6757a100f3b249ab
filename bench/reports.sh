#!/bin/sh
# What the reports cost over 1,000 to 1,000,000 games, with Python's csv module reading the same
# files beside it.   usage: bench/reports.sh [BUILD_FOLDER]
set -eu
build=${1:-build/play}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for count in 1000 10000 100000 1000000; do
    folder=$work/$count
    mkdir "$folder"
    "$build/bench/varnello-make-scores" "$folder" "$count"
    echo "== $count games"
    "$build/bench/varnello-reports-bench" "$folder"
    QT_QPA_PLATFORM=offscreen "$build/bin/varnello-windows-bench" "$folder"
    python3 - "$folder" <<'END'
import csv, glob, statistics, sys, time
def read():
    start = time.perf_counter()
    for name in sorted(glob.glob(sys.argv[1] + "/*.sre")):
        with open(name, newline="", encoding="utf-8") as file:
            for row in csv.reader(file):
                pass
    return (time.perf_counter() - start) * 1000
print("%-32s %9.2f ms" % ("Python's csv, same files", statistics.median(read() for _ in range(7))))
END
done
