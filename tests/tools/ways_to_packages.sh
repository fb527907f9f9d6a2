#!/bin/sh
# On a bare system that is thrown away: an ordinary user without sudo sees the one command to type, an ordinary user
# with sudo gets the packages, and where Debian's package tools are missing nothing is installed and what is missing is
# named.
set -eu
cd "$(dirname "$0")/../.."
user=ordinary

fail() {
  echo "ways_to_packages: $1" >&2
  exit 1
}
# A folder with every command of this system except those of the package tools.
without_tools=$(mktemp -d)
chmod 755 "$without_tools"
hide_package_tools() {
  for file in /usr/sbin/* /usr/bin/*; do
    case ${file##*/} in apt* | dpkg*) ;; *) ln -sf "$file" "$without_tools" ;; esac
  done
}
as_user() {
  su "$user" -c "$1" 2>&1
}
installed() {
  dpkg-query -W -f='${db:Status-Status} ${Package}\n' | grep -c '^installed '
}

useradd --create-home "$user"
apt-get update -qq
before=$(installed)
if printed=$(as_user ./demo.sh); then
  fail "the demo went on without its packages"
fi
echo "$printed"
typed=$(echo "$printed" | sed -n 's/^ *\(apt-get install .*\)/\1/p')
[ -n "$typed" ] || fail "no command to type was printed"
# shellcheck disable=SC2086 # the words of a command
$typed --simulate >/dev/null || fail "the command to type does not work"
[ "$(installed)" -eq "$before" ] || fail "an ordinary user has installed something"

hide_package_tools
if printed=$(as_user "PATH=$without_tools ./demo.sh"); then
  fail "the demo went on without what is missing"
fi
echo "$printed"
for words in "the command cmake" "the library Qt6PrintSupport, version 6.4 or later" "the font Liberation Sans"; do
  echo "$printed" | grep -q "^$words" || fail "not named as missing: $words"
done

DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends sudo >/dev/null
echo "$user ALL=(ALL) NOPASSWD: ALL" >/etc/sudoers.d/"$user"
as_user "tools/install_packages playing"
as_user "command -v gnuplot" || fail "sudo has installed nothing"
printed=$(as_user "tools/install_packages playing")
[ -z "$printed" ] || fail "the second time something was installed: $printed"
hide_package_tools
as_user "PATH=$without_tools tools/install_packages playing" || fail "nothing is missing, and it did not go on"
echo "ways_to_packages: all ways lead where they should"
