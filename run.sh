#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds Kestrill and starts it. The first start lays its database into your data folder.
set -euo pipefail
cd "$(dirname "$0")"

scripts/build release
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "There is no display here. Showing a tour of the program on a virtual one instead."
    exec scripts/tour build/release
fi
scripts/lay-database build/release/data/KTL.db
exec build/release/bin/Kestrill
