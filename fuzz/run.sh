#!/bin/sh
# run.sh FUZZER SEEDS SECONDS: runs a libFuzzer target for SECONDS on its committed seeds.
# New inputs go to a scratch corpus, so the committed seeds stay as they are; a crash leaves
# its input in the scratch directory and fails the run.
set -eu
fuzzer=$1
seeds=$2
seconds=$3
work=$(mktemp -d "${TMPDIR:-/tmp}/fuzz.XXXXXX")
"$fuzzer" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
  -artifact_prefix="$work/" "$work" "$seeds"
