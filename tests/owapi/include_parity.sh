#!/bin/sh
# include_parity.sh STANDIN_DIR REFERENCE_DIR
#
# Fails when a header of STANDIN_DIR reaches, through its "OW_..." includes, a header that
# its namesake in REFERENCE_DIR (a real OpenWBEM's include/openwbem) does not reach. Code
# that compiles against the stand-in only because of such an extra include breaks against a
# real installation. Headers without a namesake are not compared. Conditional includes count
# as taken, so the reference's closure is an upper bound.
set -eu

if [ $# -ne 2 ] || [ ! -d "$1" ] || [ ! -d "$2" ]; then
  echo "usage: $0 STANDIN_DIR REFERENCE_DIR" >&2
  exit 2
fi

# Prints "HEADER INCLUDED CHAIN", sorted, for every header of directory $1 and everything it
# includes directly or indirectly (itself included); CHAIN is the include path from HEADER,
# joined by ">".
closures() {
  (cd "$1" && awk '
    BEGIN { for (i = 1; i < ARGC; i++) files[ARGV[i]] = 1 }
    /^[ \t]*#[ \t]*include[ \t]*["<]OW_[A-Za-z0-9_]*\.h(pp)?[">]/ {
      match($0, /OW_[A-Za-z0-9_]*\.h(pp)?/)
      deps[FILENAME] = deps[FILENAME] " " substr($0, RSTART, RLENGTH)
    }
    END {
      for (h in files) {
        split("", seen); split("", via)
        top = 0; stack[++top] = h; seen[h] = 1
        while (top > 0) {
          f = stack[top--]
          n = split(deps[f], d, " ")
          for (i = 1; i <= n; i++)
            if (!(d[i] in seen)) { seen[d[i]] = 1; via[d[i]] = f; stack[++top] = d[i] }
        }
        for (x in seen) {
          chain = x
          if (x != h) for (p = via[x]; p != h; p = via[p]) chain = p ">" chain
          print h, x, chain
        }
      }
    }' OW_*.h*) | sort
}

reference=$(closures "$2")
[ -n "$reference" ] || { echo "no OW_ headers in $2" >&2; exit 2; }
standin=$(closures "$1")

printf '%s\n--\n%s\n' "$reference" "$standin" | awk '
  $0 == "--" { part = 2; next }
  part != 2 { known[$1] = 1; reached[$1 " " $2] = 1; next }
  !($1 in known) { next }
  { compared[$1] = 1 }
  !(($1 " " $2) in reached) {
    bad[$1] = 1
    print $1 ": includes " $2 ($3 == $2 ? "" : " (" $3 ")") ", the real one does not"
  }
  END {
    nc = 0; nb = 0
    for (h in compared) nc++
    for (h in bad) nb++
    print nb " of " nc " stand-in headers include more than their real counterparts"
    exit (nc == 0 || nb > 0) ? 1 : 0
  }'
