"""A Wayland compositor of the test's own, without a screen, a pointer or a keyboard."""

import contextlib
import os
import pathlib
import subprocess

from DesktopProgram import LIMIT, DesktopProgram, wait_for

SOCKET = "dunmoor-test"


def backend():
    """Older versions of the compositor know the backend by the name of its file."""
    known = subprocess.run(["weston", "--help"], stdout=subprocess.PIPE, text=True, check=True).stdout
    return "headless-backend.so" if "headless-backend.so" in known else "headless"


@contextlib.contextmanager
def compositor():
    """A running compositor. Programs started meanwhile show their windows there, and have no X11."""
    runtime = pathlib.Path(os.environ["XDG_RUNTIME_DIR"])
    log = runtime / "weston.log"
    command = ["weston", f"--backend={backend()}", f"--socket={SOCKET}", "--no-config", f"--log={log}"]
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    before = os.environ.copy()
    try:
        wait_for("the compositor's socket", (runtime / SOCKET).exists)
        os.environ.update(WAYLAND_DISPLAY=SOCKET, QT_QPA_PLATFORM="wayland")
        del os.environ["DISPLAY"]
        yield
    except BaseException:
        print(log.read_text(encoding="utf-8") if log.exists() else "the compositor wrote no log")
        raise
    finally:
        os.environ.clear()
        os.environ.update(before)
        process.terminate()
        process.wait(timeout=LIMIT)


class ProgramWithoutPointer(DesktopProgram):
    """Acts on the controls as assistive technology does, because a compositor lets no program move the pointer."""

    @staticmethod
    def _click_at(control):
        assert control.get_action_iface().do_action(0), control.get_name()

    def type(self, title, field, text):
        control = self.find(title, field, "text")
        assert control.get_editable_text_iface().set_text_contents(text), field
