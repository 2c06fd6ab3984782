#!/usr/bin/env bash
# Formatter and lint. What passed once is not looked at again until it, a header of the project or
# the settings change (by content).
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mapfile -t files < <(git ls-files --cached --others --exclude-standard -- '*.cpp' '*.hpp' | while read -r f; do [ -e "$f" ] && echo "$f"; done)
clang-format --dry-run --Werror "${files[@]}"

passed=build/lint
mkdir -p "$passed"
headers=$(cat .clang-tidy $(printf '%s\n' "${files[@]}" | grep '\.hpp$') | sha256sum | cut -c1-16)
todo=()
for file in "${files[@]}"; do
    case "$file" in
    *Windows.cpp | fuzz/*) continue ;;
    *.cpp) ;;
    *) continue ;;
    esac
    mark="$passed/$( (echo "$headers"; cat "$file") | sha256sum | cut -c1-32)"
    [ -e "$mark" ] || todo+=("$file|$mark")
done
if [ ${#todo[@]} -gt 0 ]; then
    echo "Lint: ${#todo[@]} files"
    printf '%s\n' "${todo[@]}" | xargs -P "$(nproc)" -I{} bash -c '
        file=${1%%|*}
        mark=${1##*|}
        clang-tidy --quiet -p build/sanitize "$file" 2>/dev/null && touch "$mark"
    ' _ {} || { echo "Lint found something (see above)." >&2; exit 1; }
fi
