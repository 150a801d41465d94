#!/bin/sh
# OnXServer.sh COMMAND...: runs a command on an X server of its own, with a window manager: without one no window ever
# comes to the front.
set -e
folder=$(mktemp -d)
trap 'kill $manager $server 2>/dev/null; rm -rf "$folder"' EXIT
Xvfb -displayfd 3 -noreset -screen 0 1280x1024x24 3>"$folder/display" 2>"$folder/log" &
server=$!
while [ ! -s "$folder/display" ]; do
    kill -0 $server || exit 1
    sleep 0.1
done
DISPLAY=:$(cat "$folder/display")
export DISPLAY
openbox >"$folder/manager" 2>&1 &
manager=$!
sleep 1
QT_QPA_PLATFORM=xcb "$@"
