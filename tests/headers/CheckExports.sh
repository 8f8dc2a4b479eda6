#!/usr/bin/env bash
# Names every class and function of the public headers in one program and holds what the compiler saw declared against
# what the libraries export: a host can link each function that a header shows him, and finds each that is exported in
# a header. Called as CheckExports.sh COMPILER "FLAGS" FOLDER "LIBRARIES" HEADERS...
set -euo pipefail
export LC_ALL=C
compiler=$1 flags=$2 folder=$3 libraries=$4
shift 4
cd "$folder"

# "class penlode::Region", "function penlode::SplitLines" or "pure penlode::ISerialize::Read(" a line. What belongs to
# a namespace begins its line; templates and inline functions need no library.
awk '
  function last_word(text) { sub(/\(.*/, "", text); if (!sub(/.* operator/, "operator", text)) sub(/.*[ *&]/, "", text); return text }
  /^namespace (penlode|millichart) / { room = $2; next }
  /^extern "C"/ { room = ""; next }
  /^template/ { skip = !/[;{}]$/; next }
  skip { skip = !/[;{}]$/; next }
  /^(class|struct) .*\{/ {
    sub(/^[a-z]+ ([A-Z]+_API )?/, ""); sub(/[^A-Za-z0-9_].*/, "")
    type = room "::" $0
    print "class", type
    next
  }
  /^ +\/\// { next }
  /^ / && type != "" {
    statement = statement $0
    if (/[;{}]/) {
      if (statement ~ /_API friend/) print "friend", room "::" last_word(statement)
      if (statement ~ /virtual .* = 0;/) print "pure", type "::" last_word(statement) "("
      statement = ""
    }
  }
  /^}/ { type = "" }
  /^(inline|constexpr|namespace|class|struct|enum|using|static_assert)/ { next }
  /^[A-Za-z].*\(/ { print "function", room "::" last_word($0) }
' "$@" | sort -u >named

{
  printf '#include "%s"\n' "$@"
  awk '$1 == "class" { print $2 "* pointer" NR ";" }' named
  echo 'namespace named {'
  awk '$1 == "function" { print "using " $2 ";" }' named
  echo '}'
} >names.cpp
# shellcheck disable=SC2086 # one flag a word
"$compiler" -std=c++20 $flags -O0 -gdwarf-4 -femit-class-debug-always -fno-eliminate-unused-debug-types \
  -fkeep-inline-functions -c names.cpp -o names.o

# A constructor or destructor counts once, whatever its variants.
functions() { grep -E '^_ZNK?(7penlode|10millichart)' | sed -E 's/([CD])[0-4](E|I)/\11\2/' | sort -u; }
readable() { c++filt | sed 's/\[abi:[a-z0-9]*]//g'; }
readelf --debug-dump=info --wide names.o | awk '
  function finish() { if (name != "" && counts) print name, kind; name = "" }
  /Abbrev Number/ { finish(); counts = /DW_TAG_subprogram/; kind = "" }
  /DW_AT_linkage_name/ { name = $NF }
  /DW_AT_virtuality/ { kind = "virtual" }
  /DW_AT_(artificial|deleted|defaulted|GNU_deleted|GNU_defaulted)/ { counts = 0 }
  END { finish() }' >seen
cut -d ' ' -f 1 seen | functions >declared
awk '$2 == "virtual" { print $1 }' seen | functions >virtual
nm --defined-only names.o | awk '{ print $3 }' | functions >inline
# shellcheck disable=SC2086 # one library a word
nm --dynamic --defined-only $libraries | awk 'NF == 3 { print $2, $3 }' >symbols
cut -d ' ' -f 2 symbols | functions >exported

# A pure virtual function has no definition; a template's members have theirs where they are used.
comm -23 declared <(sort -u exported inline) >missing
awk '$1 == "pure" { print $2 }' named >pure
{
  comm -23 missing virtual | readable
  comm -12 missing virtual | readable | grep -vFf pure || true
} | grep -v '^[^(]*<' >unlinkable || true
awk '$1 == "T" { print $2 }' symbols | functions | readable | sed 's/[<(].*//' |
  grep -oE '(penlode|millichart)::(operator.+|[A-Za-z0-9_]+)' | sort -u |
  comm -23 - <(cut -d ' ' -f 2 named | sort -u) >undeclared
sed 's/^/declared in a public header and exported by no library: /' unlinkable
sed 's/^/exported, and named in no public header: /' undeclared
echo "$(wc -l <declared) functions declared, $(wc -l <exported) exported"
[ ! -s unlinkable ] && [ ! -s undeclared ]
