# shellcheck shell=bash
# Sourced by ./run, ./test and ./bench: configures and builds a preset.
cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit

# Lets compiled files be shared between clones of the project.
export CCACHE_BASEDIR=${CCACHE_BASEDIR:-$PWD} CCACHE_NOHASHDIR=${CCACHE_NOHASHDIR:-1}

# build PRESET [-DNAME=VALUE ...] [-- TARGET ...]
# Tests and benchmarks are left out unless they are asked for, now or in an earlier build of this preset.
build() {
    local preset=$1 options=() targets=()
    shift
    [[ -f build/$preset/CMakeCache.txt ]] || options=(-DLUMIVEX_TESTS=OFF -DLUMIVEX_BENCH=OFF)
    while (($#)) && [[ $1 != -- ]]; do
        options+=("$1")
        shift
    done
    (($#)) && targets=(--target "${@:2}")
    cmake --preset "$preset" --log-level=NOTICE "${options[@]}" >/dev/null
    # g++ would read the old precompiled header while it makes the new one.
    local header
    find "build/$preset" -name 'cmake_pch.hxx' | while read -r header; do
        [[ $header.gch -nt $header ]] || rm -f "$header.gch"
    done
    cmake --build "build/$preset" --parallel "$(nproc 2>/dev/null || echo 2)" "${targets[@]}"
}
