# shellcheck shell=bash
# What the scripts of this folder share. Sourced, never run.

scripts=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck disable=SC2034  # used by the scripts that source this file
root=$(dirname "$scripts")

die()
{
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# The comment at the head of a script is its help text.
print_help()
{
    awk 'NR == 1 { next } !/^#/ { exit } { sub(/^# ?/, ""); print }' "$0"
}

# build_jobs: how many compilers run at once.
build_jobs()
{
    echo "${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}"
}

# build DIRECTORY TARGET [CMake option…]: configures and builds.
build()
{
    local directory=$1 target=$2
    shift 2
    cmake -S "$root" -B "$directory" "$@"
    cmake --build "$directory" --target "$target" --parallel "$(build_jobs)"
}
