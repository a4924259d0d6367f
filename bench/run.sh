#!/usr/bin/env bash
# Runs the benchmarks of a build and prints one Markdown table: `run.sh BUILD_FOLDER [--quick]`.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
[[ $# -ge 1 && $1 != -* ]] || { echo "usage: bench/run.sh BUILD_FOLDER [--quick]" >&2; exit 2; }
exec python3 "$here/table.py" "$@"
