#!/usr/bin/env bash
# Configures and builds the whole project in build/ (Release).
set -euo pipefail
cd "$(dirname "$0")/.."
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release
cmake --build build
