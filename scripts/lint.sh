#!/usr/bin/env bash
# shellcheck disable=SC2317  # Steps call the functions by name.
# What neither compiler nor tests find. Called by ./dev lint, which installs the tools.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
status=0
step() { echo "== $1"; shift; "$@" || { status=1; echo "== failed"; }; }

mapfile -t ours < <(find . \( -name build -o -name '.*' ! -name . \) -prune -o -name '*.cpp' -print -o -name '*.h' -print | sort)
mapfile -t product < <(printf '%s\n' "${ours[@]}" | grep -E '^\./(app|Classes|platform|interface|helpers)/.*\.cpp$')

step "layout" clang-format --dry-run -Werror "${ours[@]}"
step "scripts" shellcheck -x dev scripts/*.sh .ci/run resources/system/install-helper resources/system/60-ticklog resources/system/postrm

desktop_entries() { local entries=(resources/*.desktop); [ ! -e "${entries[0]}" ] || desktop-file-validate "${entries[@]}"; }
step "desktop entries" desktop_entries
# Well-formed, without fetching what describes them.
step "bus and polkit files" xmllint --noout --nonet resources/system/*.conf resources/system/*.policy

# A build of its own without a precompiled header, because clang cannot read that of g++.
tidy() {
  cmake --preset release -B build/lint -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DTICKLOG_BENCH=OFF --log-level=WARNING >/dev/null
  # Our headers include those generated from the Wayland protocols.
  cmake --build build/lint --target protocols >/dev/null
  printf '%s\n' "${product[@]}" | xargs -P "$(nproc)" -n 4 clang-tidy -p build/lint --quiet \
    --extra-arg=-Wno-unknown-warning-option 2> >(grep -v 'warnings\? \(generated\|treated\)' >&2)
}
step "clang-tidy" tidy

step "cppcheck" cppcheck --quiet --error-exitcode=1 --std=c++20 --language=c++ --library=qt --inline-suppr -j "$(nproc)" \
  --enable=warning,performance,portability --suppressions-list=scripts/cppcheck.supp -I . "${product[@]}"

exit $status
