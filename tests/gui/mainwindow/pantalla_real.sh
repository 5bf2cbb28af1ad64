#!/usr/bin/env bash
# The windows on a real X screen of 1024 x 768 under a window manager that
# puts title bars on them (Xvfb and Openbox): each fits the free area with
# its frame and can be resized. With VANTA_CAPTURAS=DIR it keeps a picture
# of the screen with each window in DIR. Skipped (77) without Xvfb or Openbox.
set -euo pipefail
pruebas="$1"
command -v Xvfb >/dev/null && command -v openbox >/dev/null || exit 77

pantalla=":$((90 + RANDOM % 100))"
Xvfb "$pantalla" -screen 0 1024x768x24 -nolisten tcp &
xvfb=$!
gestor=""
terminar() {
    [ -n "$gestor" ] && kill "$gestor" 2>/dev/null
    kill "$xvfb" 2>/dev/null
    wait 2>/dev/null || true
}
trap terminar EXIT
export DISPLAY="$pantalla"
for _ in $(seq 50); do
    [ -e "/tmp/.X11-unix/X${pantalla#:}" ] && break
    sleep 0.1
done
openbox --sm-disable &
gestor=$!
sleep 1
QT_QPA_PLATFORM=xcb "$pruebas" PruebaPantalla
