"""Drives a program from outside its process, as assistive technology sees it: finds windows and controls by role and
name over the accessibility bus, and sends real mouse and key events."""

import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

LIMIT = 15  # seconds, for any wait


def wait_for(what, look):
    """Waits until look() finds something and returns it."""
    end = time.monotonic() + LIMIT
    while time.monotonic() < end:
        try:
            found = look()
        except gi.repository.GLib.GError:  # the window is just closing
            found = None
        if found:
            return found
        time.sleep(0.05)
    raise AssertionError(f"{what}: not within {LIMIT} seconds")


def descendants(accessible):
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child is not None:
            yield child
            yield from descendants(child)


def role(accessible):
    """The role's newer name, even if the bus gives the older one."""
    name = accessible.get_role_name()
    return "button" if name == "push button" else name


def is_showing(accessible):
    return accessible.get_state_set().contains(Atspi.StateType.SHOWING)


class DesktopProgram:
    def __init__(self, executable, folder, arguments=(), output=None):
        self.process = subprocess.Popen([executable, *arguments], cwd=folder, stdout=output, stderr=output)
        self.application = wait_for("the program on the accessibility bus", self._find_application)

    def _find_application(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child is not None and child.get_process_id() == self.process.pid:
                return child
        return None

    def windows(self):
        """The visible windows."""
        count = self.application.get_child_count()
        all_windows = [self.application.get_child_at_index(index) for index in range(count)]
        return [window for window in all_windows if window is not None and is_showing(window)]

    def window(self, title):
        """Waits for a visible window with that text in its title."""
        return wait_for(
            f"a window '{title}' among {[w.get_name() for w in self.windows()]}",
            lambda: next((w for w in self.windows() if title in w.get_name()), None),
        )

    def _is_active(self, title):
        """Both the window manager and the program must say so."""
        active = subprocess.run(
            ["xdotool", "getactivewindow", "getwindowname"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True
        )
        return title in active.stdout and self.window(title).get_state_set().contains(Atspi.StateType.ACTIVE)

    def wait_until_active(self, title):
        """Waits until the window manager has placed and activated a window."""
        wait_for(f"'{title}' to be active", lambda: self._is_active(title))

    def gone(self, title):
        wait_for(f"the end of '{title}'", lambda: not any(title in w.get_name() for w in self.windows()))

    def find(self, title, name, wanted_role=None):
        """The control with that name, or with a name that begins with it and a comma, in the window with that title."""

        def look():
            for control in descendants(self.window(title)):
                text = control.get_name()
                if (text == name or text.startswith(name + ",")) and is_showing(control):
                    if wanted_role is None or role(control) == wanted_role:
                        return control
            return None

        return wait_for(f"'{name}' in '{title}'", look)

    def click(self, title, name, wanted_role=None):
        control = self.find(title, name, wanted_role)
        wait_for(f"'{name}' to be enabled", lambda: control.get_state_set().contains(Atspi.StateType.ENABLED))
        self._click_at(control)

    @staticmethod
    def _click_at(control):
        place = control.get_extents(Atspi.CoordType.SCREEN)
        x, y = place.x + place.width // 2, place.y + place.height // 2
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)
        time.sleep(0.1)

    def focus(self, title, name):
        Atspi.Component.grab_focus(self.find(title, name))

    def choose(self, title, menu, entry):
        self.click(title, menu, "menu item")
        self.click(title, entry, "menu item")

    def type(self, title, field, text):
        """Clicks a field and replaces its text."""
        self.click(title, field, "text")
        self.keys("ctrl+a")
        subprocess.run(["xdotool", "type", "--delay", "15", text], check=True)
        time.sleep(0.1)

    @staticmethod
    def keys(*keys):
        subprocess.run(["xdotool", "key", *keys], check=True)
        time.sleep(0.1)

    def text(self, title, field):
        control = self.find(title, field, "text")
        return Atspi.Text.get_text(control, 0, Atspi.Text.get_character_count(control))

    def wait_for_text(self, title, field, expected):
        wait_for(f"'{expected}' in '{field}'", lambda: self.text(title, field) == expected)

    def wait_for_end(self):
        return self.process.wait(timeout=LIMIT)

    def end(self):
        """Ends the program if it is still running."""
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()
