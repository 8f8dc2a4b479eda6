#!/usr/bin/env bash
# CheckExports.sh OBJDUMP DLL LIST: a DLL exports the classes and functions of a list, one a line, and nothing else, and
# needs no library but the system's.
set -euo pipefail
export LC_ALL=C
objdump=$1 dll=$2 list=$3

# What is named: a member by its class, with the classes inside it; a function by its name.
names() {
  "$objdump" -p "$dll" | awk '/Export Address Table/ { on = 0 } /\[Ordinal\/Name Pointer\] Table/ { on = 1; next } on && /^[ \t]*\[ *[0-9]+\]/ { print $NF }' |
    c++filt -_ | c++filt | sed -E 's/^(vtable|typeinfo|typeinfo name|VTT|guard variable) for //; s/^(virtual|non-virtual) thunk to //' |
    sed -E ':a; s/<[^<>]*>//g; ta; s/\[abi:[a-z0-9]+\]//g; s/\(.*//; s/^.* //' |
    sed -E 's/^((penlode|millichart)::(C|I)?[A-Z][A-Za-z]*)::.*/\1/' | sort -u
}

needed=$("$objdump" -p "$dll" | awk '/DLL Name:/ { print tolower($3) }' | sort -u)
for library in $needed; do
  case $library in
  kernel32.dll | user32.dll | gdi32.dll | gdiplus.dll | ole32.dll | comctl32.dll | comdlg32.dll | uxtheme.dll | msvcrt.dll | penlode.dll) ;;
  *)
    echo "$dll needs $library"
    exit 1
    ;;
  esac
done
diff -u "$list" <(names) || {
  echo "$dll exports something else than $list says"
  exit 1
}
