#!/bin/sh
# udev_rule_test.sh RULE: which nodes of mock devices the access rule tags, by udev's own word. udevadm reads a /sys, and
# the rule alone, in a root of their own; who is not root becomes so in a namespace.
set -eu
PATH=$PATH:/usr/sbin:/sbin
[ "$(id -u)" = 0 ] || [ -n "${IN_NAMESPACE:-}" ] || IN_NAMESPACE=1 exec unshare -r "$0" "$@"

rule=$1
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
udevadm=$(command -v udevadm)
for file in "$udevadm" $(ldd "$udevadm" | grep -o '/[^ ]*'); do
    mkdir -p "$root$(dirname "$file")"
    cp -L "$file" "$root$file"
done
mkdir -p "$root/etc" "$root/dev" "$root/proc" "$root/run" "$root/usr/lib/udev/rules.d" "$root/sys/class/hidraw"
cp "$rule" "$root/usr/lib/udev/rules.d/"

count=0
failures=0

# device WANT HID-ID PROTOCOL KIND [ACTION]: a hidraw node of a USB interface; KIND is "keys" where the kernel sees an input
# device on it. WANT is what becomes of the node: tagged or closed.
device() {
    count=$((count + 1))
    usb=/devices/pci0/usb1/1-2
    interface=$usb/1-2:1.$count
    hid=$interface/$2.000$count
    node=$hid/hidraw/hidraw$count
    mkdir -p "$root/sys$node" "$root/sys/bus/usb" "$root/sys/bus/hid"
    printf 'DEVTYPE=usb_device\n' > "$root/sys$usb/uevent"
    printf '%s\n' 04f3 > "$root/sys$usb/idVendor"
    printf '00\n' > "$root/sys$usb/bDeviceProtocol"
    printf 'DEVTYPE=usb_interface\nDRIVER=usbhid\n' > "$root/sys$interface/uevent"
    printf '%s\n' "$3" > "$root/sys$interface/bInterfaceProtocol"
    printf 'DRIVER=hid-generic\n' > "$root/sys$hid/uevent"
    printf 'MAJOR=240\nMINOR=%s\nDEVNAME=hidraw%s\n' $count $count > "$root/sys$node/uevent"
    for place in "$usb usb" "$interface usb" "$hid hid"; do
        ln -sfn "/sys/bus/${place#* }" "$root/sys${place% *}/subsystem"
    done
    ln -sfn /sys/class/hidraw "$root/sys$node/subsystem"
    ln -sfn "/sys$hid" "$root/sys$node/device"
    [ "$4" = silent ] || mkdir -p "$root/sys$hid/input/input$count"

    said=$(SYSTEMD_DEVICE_VERIFY_SYSFS=0 chroot "$root" "$udevadm" test --action="${5:-add}" "$node" 2>&1)
    case $said in
    *"DEVNAME=/dev/hidraw$count"*TAGS=:uaccess:*) got=tagged ;;
    *"DEVNAME=/dev/hidraw$count"*) got=closed ;;
    *) got="unread: $said" ;;
    esac
    [ "$got" = "$1" ] && return
    echo "FAILED: device $* is $got"
    failures=$((failures + 1))
}

device closed 0003:04F3:1406 01 keys     # the boot keyboard
device closed 0003:04F3:1406 01 silent   # the same, whatever the kernel makes of it
device tagged 0003:04F3:1406 00 silent   # events, configuration
device tagged 0003:04F3:1406 00 silent change
device closed 0003:04F3:1406 00 silent remove
device closed 0003:04F3:1406 00 keys     # keystrokes beside the boot protocol
device closed 0003:04F3:1406 02 keys     # a boot mouse
device closed 0003:04F3:1407 00 silent   # another product
device closed 0003:14F3:1406 00 silent   # another vendor
device closed 0005:04F3:1406 00 silent   # another bus

case $(basename "$rule") in
7[0-2]-*.rules) ;;
*) echo "FAILED: 73-seat-late.rules, which hands out the access, comes before $rule" && failures=1 ;;
esac
exit $failures
