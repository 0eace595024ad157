#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds Kestrill with its tests and runs them all.
set -euo pipefail
cd "$(dirname "$0")"

scripts/build dev
ctest --preset dev
