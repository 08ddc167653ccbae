#!/bin/sh
# check_waiting.sh packages.sh work: packages are installed as soon as another package manager lets go of its lock, and any
# other fault ends the wait. A package manager of our own stands in for the system's.
set -eu
packages=$1 work=$2
rm -rf "$work"
mkdir -p "$work/bin"
cd "$work"
tool() { cat >"bin/$1" && chmod +x "bin/$1"; }
tool dpkg-query </dev/null
tool sudo <<'END'
#!/bin/sh
exec "$@"
END
tool sleep <<'END'
#!/bin/sh
echo >>slept
END
# Says what its first calls have to say, one line of the file `answers` each; the others succeed.
tool apt-get <<'END'
#!/bin/sh
echo "$1" >>called
answer=$(sed -n "$(wc -l <called)p" answers)
[ -z "$answer" ] || { echo "$answer" >&2; exit 100; }
echo "$*" >>done
END
PATH=$work/bin:$PATH
. "$packages"

lock="E: Could not get lock /var/lib/dpkg/lock-frontend. It is held by process 1 (apt-get)"
printf '%s\n' "E: Could not get lock /var/lib/apt/lists/lock. It is held by process 1 (apt-get)" "" "$lock" "$lock" >answers
need one two 2>messages
test "$(cat called | xargs)" = "update update install install install"
test "$(tail -n 1 done)" = "install -q -y --no-install-recommends one two"
test "$(wc -l <slept)" = 3
grep -q "waiting for another package manager" messages

rm called done slept
echo "E: The repository is not signed." >answers
if need one two 2>messages; then
  echo "a failing package manager passes" >&2
  exit 1
fi
grep -q "not signed" messages
test "$(cat called)" = update
