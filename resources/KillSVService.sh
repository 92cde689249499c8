#!/bin/sh
# Stops the running Services application of this user, so that its bundle can be replaced or
# removed. The wizard runs it before it does either. Asks nobody. Ends with 0 when none runs any
# more, also when none ran; with 1 when one does not end within about five seconds.
#
# A process counts whose executable is SVService.app/Contents/MacOS/SVService, wherever that lies.
set -u
executable=SVService.app/Contents/MacOS/SVService
user=$(id -u)

# One look at all processes, so that a busy machine does not stretch the limit.
running() {
    if [ -d /proc/self ]; then
        find /proc/[0-9]*/exe -maxdepth 0 -user "$user" \
            \( -lname "*/$executable" -o -lname "*/$executable (deleted)" \) 2>/dev/null |
            sed 's,^/proc/\([0-9]*\)/exe$,\1,'
    else
        /bin/ps -axww -o pid=,uid=,comm= | while read -r process owner path; do
            case $owner:$path in
            "$user":*/"$executable") echo "$process" ;;
            esac
        done
    fi
}

for signal in TERM TERM KILL; do
    processes=$(running)
    [ -n "$processes" ] || exit 0
    # shellcheck disable=SC2086 # one word for each process
    kill -s "$signal" $processes 2>/dev/null
    waited=0
    while [ "$waited" -lt 8 ]; do
        [ -n "$(running)" ] || exit 0
        sleep 0.2
        waited=$((waited + 1))
    done
done
exit 1
