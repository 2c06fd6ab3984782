#!/usr/bin/env bash
# Formatter and lint. Wants the compile commands of build/sanitize, built.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

mapfile -t files < <(git ls-files --cached --others --exclude-standard -- '*.cpp' '*.hpp' | while read -r f; do [ -e "$f" ] && echo "$f"; done)
clang-format --dry-run --Werror "${files[@]}"

sources=()
for file in "${files[@]}"; do
    case "$file" in
    *Windows.cpp | fuzz/*) ;;
    *.cpp) sources+=("$file") ;;
    esac
done
scripts/tidy.py build/sanitize build/lint "${sources[@]}" || {
    echo "Lint found something (see above)." >&2
    exit 1
}
