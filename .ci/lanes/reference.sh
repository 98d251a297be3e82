#!/usr/bin/env bash
# The API reference can be made, and no public name is without documentation.
set -euo pipefail
source tools/setup.sh
install_packages docs

# Functions outside of classes are in the reference, and missed when undocumented, only where the header itself is.
headers=$(grep -lE "^UTILSDLL_EXPORT " ExPluginShell/modules/utilsDll/{,controls/,soap/}*.h)
# shellcheck disable=SC2086 # one word per header
if undescribed=$(grep -L '[\\]file' $headers) && [ -n "$undescribed" ]; then
    printf 'reference: exports functions, but has no \\file: %s\n' $undescribed >&2
    exit 1
fi

tools/reference.sh

# A class of Qt or a built-in type with a page of its own is an error of the configuration.
if invented=$(find build/reference/html -name 'class*.html' -printf '%f\n' | grep -E '^class([a-z]+|Q[^t].*)\.html$' | grep -v '^classes'); then
    printf 'reference: no class of the library: %s\n' "$invented" >&2
    exit 1
fi

# The same commit gives the same reference in any folder.
if named=$(grep -rlF "$PWD" build/reference/html); then
    printf 'reference: the page names the folder of the build: %s\n' "$named" >&2
    exit 1
fi
