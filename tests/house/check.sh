#!/usr/bin/env bash
# check.sh ROOT: the includes of src/ lead to lower layers only, and docs/architecture.md shows them as they are.
set -u
cd "$1" || exit 1

arrows=$(scripts/include_graph --forbidden) ||
    { printf 'includes that do not lead to a lower layer:\n%s\n' "$arrows"; exit 1; }

graph=$(scripts/include_graph)
[ "$(wc -l <<<"$graph")" -gt 10 ] || { echo "the include graph is nearly empty"; exit 1; }
shown=$(awk '/^<!-- include graph: end -->$/ { inside = 0 }
             inside { print }
             /^<!-- include graph: begin -->$/ { inside = 1 }' docs/architecture.md)
diff <(printf '%s\n' "$shown") <(printf '%s\n' "$graph") ||
    { echo "docs/architecture.md shows another include graph; run scripts/include_graph --write"; exit 1; }
echo "the include graph is the one that docs/architecture.md shows"
