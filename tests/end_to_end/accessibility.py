# Works the program as assistive technology does, from a process of its own over AT-SPI. What it writes are commands for
# the virtual keyboard.
import sys
import time

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib


def eventually(answer, what):
    """The answer once there is one; fails after ten seconds without."""
    deadline = time.monotonic() + 10
    while time.monotonic() < deadline:
        GLib.MainContext.default().iteration(False)
        try:
            if found := answer():
                return found
        except GLib.Error:  # what was asked has gone meanwhile
            pass
        time.sleep(0.02)
    sys.exit(f"waited in vain for: {what}")


def children(of):
    return [child for child in map(of.get_child_at_index, range(of.get_child_count())) if child]


def everything(of):
    return [each for child in children(of) for each in [child, *everything(child)]]


def has(item, state):
    return item.get_state_set().contains(getattr(Atspi.StateType, state))


def window(name):
    apps = [app for app in children(Atspi.get_desktop(0)) if app.get_name() == "tarnix-keyboard"]
    return next((top for app in apps for top in children(app) if top.get_name() == name and has(top, "SHOWING")), None)


def shown(name):
    return eventually(lambda: window(name), f"the window {name}")


def item(window_name, name, role=None):
    return eventually(lambda: next((each for each in everything(shown(window_name)) if each.get_name() == name
                                    and role in (None, each.get_role_name())), None), f"{name} in {window_name}")


def press(*which):
    pressed = item(*which)
    assert pressed.get_action_iface().do_action(0), which
    return pressed


main = "Tarnix Keyboard"
key_page = everything(shown(main))
assert len([each for each in key_page if each.get_name().startswith("Key ") and each.get_role_name() == "push button"]) == 103
assert all(each.get_name() and has(each, "SHOWING") and each.get_extents(Atspi.CoordType.SCREEN).width > 0
           for each in key_page), [each.get_name() for each in key_page]
assert has(item(main, "Profile 1", "page tab"), "SELECTED") and not has(item(main, "Profile 2"), "SELECTED")

# A key gets another function; what the dialog shuts out does nothing.
press(main, "Key F1")
press("Key function", "Mouse function, Click", "combo box")
press(main, "Apply")
press("Mouse function", "Fire", "menu item")
press("Key function", "Mouse function", "radio button")
press("Key function", "OK")
item(main, "Key F1, assigned Fire, changed")

# A list opens, says so, and its choice is read in its field.
heard = []
listener = Atspi.EventListener.new(lambda event: heard.append((event.type, event.source.get_name())))
listener.register("object:state-changed")
press(main, "Lighting")
field = press(main, "Brightness, 100%", "combo box")
assert [row.get_name() for row in children(shown("Brightness"))] == ["0%", "25%", "50%", "75%", "100%"]
assert has(field, "EXPANDED")
eventually(lambda: ("object:state-changed:focused", "Brightness") in heard, "the list's focus")
press("Brightness", "75%")
item(main, "Brightness, 75%")
assert not has(field, "EXPANDED")
press(main, "Speed, Normal", "combo box")
press("Speed", "Fast")

# What is pressed while the keyboard is written to comes after it.
for name in "Apply", "Profile 2", "Apply":
    press(main, name)
eventually(lambda: has(item(main, "Profile 2"), "SELECTED"), "profile 2")
item(main, "Brightness, 100%")

# What the keyboard says is read out, and a notice too.
print("profile 3", flush=True)
shown("Current Profile:3")
print("lock win 1", flush=True)
eventually(lambda: ("object:state-changed:showing", "Windows Key Status:Enable") in heard, "the second text")
assert has(item(main, "Profile 3"), "SELECTED")
print("unplug", flush=True)
item("Attention!", "The keyboard is disconnection\uff0cPlease connect!", "label")
press("Attention!", "OK")
