#!/bin/sh
# order.sh - from a house to what the maker, the builder and the client get. Wants teskarlt on the PATH, and house.dxf and
# windows.jsonl in the folder it runs in.
set -e
teskarlt insert house.dxf --jobs windows.jsonl -o order.dxf
teskarlt mark order.dxf --mark "{roof}-{run}" --tags --tag-shape box
teskarlt schedule order.dxf --by type -o order.xlsx
teskarlt preview order.dxf -o order.svg --scale 50 --paper A3 --project "Example house" --date 2026-05-04
teskarlt preview order.dxf -o order.html
teskarlt preview order.dxf -o order.glb
