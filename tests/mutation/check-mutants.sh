#!/usr/bin/env bash
# check-mutants.sh engine|desktop [WORK_FOLDER [PATTERN]]: whether the tests notice faults.
# Puts the faults of engine.txt or desktop.txt into a copy of the sources, one at a time, and runs
# tests until one fails: those of the engine, the golden scripts and the won games, or those of the
# window and the scripts. PATTERN, a part of a file's name, picks mutants. A work folder given is
# kept, so that the next run builds less.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
half=${1:?engine or desktop}
work=${2:-$(mktemp -d)}
pattern=${3:-}
list=$root/tests/mutation/$half.txt
source=$work/source build=$work/build log=$work/log
[ $# -gt 1 ] || trap 'rm -rf "$work"' EXIT

# The mutants: where, the original text and what takes its place.
files=() originals=() replacements=()

fail() {
    echo "$*" >&2
    exit 2
}

# How often the text $2 stands in the text $1: 0, 1, or 2 for more.
count() {
    local rest=${1#*"$2"}
    if [ "$rest" = "$1" ]; then echo 0; elif [[ $rest == *"$2"* ]]; then echo 2; else echo 1; fi
}

add_mutant() {
    [ -n "$original" ] || return 0
    [ "$(count "$(<"$root/src/$file")" "$original")" = 1 ] ||
        fail "This doesn't stand exactly once in $file:"$'\n'"$original"
    if [[ $file == *"$pattern"* ]]; then
        files+=("$file") originals+=("$original") replacements+=("$replacement")
    fi
    original='' replacement=''
}

read_mutants() {
    local line file='' original='' replacement=''
    while IFS= read -r line; do
        case $line in
            '@ '*) add_mutant && file=${line#@ } ;;
            '-'*) line=${line#-} original+=${original:+$'\n'}${line# } ;;
            '+'*) line=${line#+} replacement+=${replacement:+$'\n'}${line# } ;;
            '') add_mutant ;;
            '#'*) ;;
            *) fail "$list: $line" ;;
        esac
    done <"$list"
    add_mutant
}

copy_sources() {
    local path
    # A file that has changed, be it by an interrupted run, is built anew; others aren't.
    while IFS= read -r -d '' path; do
        [ ! -e "$root/$path" ] || cmp -s "$root/$path" "$source/$path" ||
            install -D "$root/$path" "$source/$path"
    done < <(cd "$root" && git ls-files -z -co --exclude-standard)
    # The sanitizers take their time. Most of what they would see, checked containers see as well.
    sed -i 's/-O1 -g -UNDEBUG -fsanitize=address,undefined -fno-sanitize-recover=all/-D_GLIBCXX_ASSERTIONS/
            s/-fsanitize=address,undefined//' "$source/src/engine/CMakeLists.txt"
    local desktop=OFF
    [ "$half" = engine ] || desktop=ON
    cmake -S "$source" -B "$build" -G Ninja -DVARNELLO_DESKTOP=$desktop -DVARNELLO_BENCH=OFF \
        --compile-no-warning-as-error >"$log"  # a fault may leave something unused
}

build() {
    ninja -C "$build" "$1" >"$log" 2>&1 || { grep -m 3 'error' "$log" >&2; fail "$1 doesn't build."; }
}

# Prints the name of the first golden script that has another output, and fails then.
try_scripts() {
    local program=$build/src/script/$1 name script
    build "$1"
    for script in "$root"/tests/scripts/*.script; do
        name=$(basename "$script" .script)
        timeout 60 cmake -D PROGRAM="$program" -D SCRIPT="$script" -D FOLDER="$work/data" \
            -D EXPECTED="${script%.script}.expected" -P "$root/tests/scripts/compare.cmake" \
            >"$log" 2>&1 || { echo "script.$name" && return 1; }
    done
}

# Both print the name of the first test that fails, or nothing.
failure_of_engine() {
    build varnello-engine-tests
    if ! timeout 60 "$build/tests/engine/varnello-engine-tests" --gtest_fail_fast >"$log" 2>&1; then
        # A crash leaves no verdict, only the name of the test that was running.
        sed -n '/^\[  FAILED  \]/{s/.*\] \([^ ,]*\).*/\1/p;q}' "$log" | grep . ||
            sed -n 's/^\[ RUN      \] \(.*\)/\1/p' "$log" | tail -n 1
        return 0
    fi
    try_scripts varnello-script-sanitized || return 0
    timeout 120 cmake -D PROGRAM="$build/src/script/varnello-script-sanitized" \
        -D FOLDER="$work/data" -D SCRIPTS="$root/tests/wins" \
        -D CATALOGUE="$root/src/engine/definitions/catalogue.cpp" -P "$root/tests/wins/play.cmake" \
        >"$log" 2>&1 || echo wins
}

failure_of_desktop() {
    local name
    # The slowest ones last.
    for name in commands shell choosers customize reports play help charts appearance words sounds \
        scripts copies moments; do
        name=varnello-${name}_test
        build "$name"
        QT_QPA_PLATFORM=offscreen timeout 120 "$build/bin/$name" -maxwarnings 1 >"$log" 2>&1 && continue
        sed -n '/^FAIL!/{s/^FAIL!  : \([^(]*\).*/\1/p;q}' "$log" | grep . || echo "$name"
        return 0
    done
    try_scripts varnello-script || return 0
}

first_failure() { "failure_of_$half"; }

# Prints what became of mutant $1; fails when it survives.
try_mutant() {
    local file=${files[$1]} original=${originals[$1]} replacement=${replacements[$1]} content line
    content=$(<"$root/src/$file")
    line=$(printf '%s' "${content%%"$original"*}" | wc -l)
    printf '%s\n' "${content/"$original"/"$replacement"}" >"$source/src/$file"
    local name built=yes
    name=$(first_failure) || built=no
    cp "$root/src/$file" "$source/src/$file"
    if [ $built = no ]; then
        printf 'NO BUILD  %s\n' "$file:$((line + 1))"
        return 1
    fi
    if [ -n "$name" ]; then
        printf 'killed    %-34s %s\n' "$file:$((line + 1))" "$name"
        return 0
    fi
    printf 'SURVIVED  %s\n' "$file:$((line + 1))"
    diff <(echo "$original") <(echo "$replacement") | sed -n 's/^\([<>]\)/    \1/p'
    return 1
}

read_mutants
copy_sources
name=$(first_failure)
[ -z "$name" ] || fail "Without any mutant, $name fails."
survivors=0
for i in "${!files[@]}"; do
    try_mutant "$i" || survivors=$((survivors + 1))
done
echo "${#files[@]} mutants, $survivors survived"
[ "$survivors" = 0 ]
