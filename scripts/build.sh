#!/usr/bin/env bash
# Sets up the machine and builds the program into build/.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
cmake --preset release > /dev/null
cmake --build --preset release
