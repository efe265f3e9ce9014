#!/usr/bin/env bash
# Installs the Debian package on a fresh Debian in a folder, runs it there as a user, upgrades it, and removes it.
#   packaging/test_package.sh build/release
# Runs as root, wants debootstrap and the mirror of this machine's own package sources. Takes some minutes and 1.5 GiB,
# so it is no part of ./test.
set -eu
build=$(readlink -f "${1:?usage: test_package.sh BUILD}")
[ "$(id -u)" -eq 0 ] || { echo "test_package.sh must run as root" >&2; exit 1; }

mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | grep -v security | head -n 1)
work=$(mktemp -d)
root=$work/root
trap 'umount -q "$root/proc" || true; rm -rf "$work"' EXIT

say() { echo "== $*"; }
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
as_user() { inside runuser -u toolmaker -- env HOME=/home/toolmaker "$@"; }
# install_package DEB: as a person does who double-clicks it, with what it recommends.
install_package() { cp "$1" "$root/tmp/"; inside apt-get install -y -qq "/tmp/$(basename "$1")" >"$work/apt.log" 2>&1 ||
    { cat "$work/apt.log"; exit 1; }; }
package_files() { find "$root/usr" "$root/etc" "$root/var/lib/dpkg/info" -path '*brindlex*' | sort; }

# Starts the program, waits for its menu, ends it in order.
starts() {
    cat >"$root/usr/local/bin/starts" <<'SCRIPT'
#!/bin/sh
set -eu
brindlex & id=$!
for tick in $(seq 300); do
    [ -z "$(xdotool search --onlyvisible --pid $id 2>/dev/null)" ] || break
    kill -0 $id
    sleep 0.1
done
xdotool search --onlyvisible --pid $id >/dev/null
readlink /proc/$id/cwd
kill -TERM $id
wait $id
SCRIPT
    chmod +x "$root/usr/local/bin/starts"
    local told
    told=$(as_user xvfb-run -a -s "-screen 0 1280x1024x24 -noreset" /usr/local/bin/starts 2>"$work/told") || { cat "$work/told"; exit 1; }
    [ "$(tail -n 1 <<<"$told")" = /home/toolmaker/.local/share/brindlex ] || { echo "it works in: $told"; exit 1; }
}

say "the package and a later one"
cpack --config "$build/CPackConfig.cmake" -B "$work/one" >/dev/null
cpack --config "$build/CPackConfig.cmake" -B "$work/two" -D CPACK_DEBIAN_PACKAGE_VERSION=99.0 >/dev/null
say "a fresh Debian"
debootstrap --variant=minbase bookworm "$root" "$mirror" >"$work/bootstrap.log" 2>&1 || { tail "$work/bootstrap.log"; exit 1; }
mount -t proc proc "$root/proc"
inside useradd -m toolmaker
inside apt-get install -y -qq --no-install-recommends xvfb xauth xdotool >"$work/apt.log" 2>&1
package_files >"$work/before"

say "install"
install_package "$work"/one/*.deb
inside test -x /usr/bin/brindlex
starts
as_user brindlex-cli right --side-a 5 --angle-b 30 --csv
as_user sh -c 'echo kept >~/.local/share/brindlex/Mill.dat'
package_files >"$work/installed"

say "upgrade"
install_package "$work"/two/*.deb
inside dpkg-query -W brindlex
[ "$(inside dpkg-query -W -f '${Version}' brindlex)" = 99.0 ]
package_files | diff "$work/installed" -
starts

say "remove"
inside apt-get purge -y -qq brindlex >"$work/apt.log" 2>&1
package_files | diff "$work/before" -
[ "$(cat "$root/home/toolmaker/.local/share/brindlex/Mill.dat")" = kept ]
say "all of it works; the user's data are where they were"
