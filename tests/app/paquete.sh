#!/usr/bin/env bash
# The Debian package as CPack makes it from this build: lintian finds no
# error and no warning in it, its AppStream metadata is valid, and it holds
# the manual page, the program of the windows and the metadata. Skipped (77)
# without lintian or appstreamcli.
set -euo pipefail
construccion="$1"
command -v lintian >/dev/null && command -v appstreamcli >/dev/null || exit 77
salida="$(mktemp -d)"
trap 'rm -rf "$salida"' EXIT
(cd "$construccion" && cpack -G DEB -B "$salida" >/dev/null)
paquete="$(ls "$salida"/*.deb)"
lintian --fail-on error,warning "$paquete"
appstreamcli validate --no-net "$construccion"/io.github.vanta.Vanta.metainfo.xml
contenido="$(dpkg-deb -c "$paquete")"
for archivo in usr/share/man/man1/vanta.1.gz usr/lib/vanta/vanta-ventanas \
               usr/share/metainfo/io.github.vanta.Vanta.metainfo.xml usr/share/doc/vanta/changelog.gz; do
    grep -q "\./$archivo\$" <<<"$contenido" || { echo "falta $archivo en el paquete" >&2; exit 1; }
done
