#!/bin/sh
# group.sh HEADER: prints the public header with the group of its wing round it. The wing is the one whose CMakeLists.txt
# names the unit. The lines keep their numbers.
# A declared instance of a class template is left out: it would get a page of its own.
set -eu
library=ExPluginShell/modules/utilsDll
unit=$(basename "$1" .h)
named=$(grep -lE "^[^#]* $unit( |\)|$)" "$library"/*/CMakeLists.txt)
wing=$(basename "$(dirname "$named")")
sed -e "s|^#pragma once\$|/** \\\\addtogroup wing_$wing */ /** \\\\{ */|" -e 's/^extern template.*//' "$1"
printf '%s\n' '/** \} */'
