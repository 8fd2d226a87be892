"""A print server of the test's own: a real cupsd in a temporary folder, with queues whose paper is a file. It knows
nothing of the machine's print server, and the machine knows nothing of it."""

import contextlib
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile

from DesktopProgram import LIMIT, wait_for

NOBODY = 65534

FILES = """
ServerRoot {0}/root
ServerBin {0}/bin
CacheDir {0}/cache
StateDir {0}/state
RequestRoot {0}/spool
TempDir {0}/temporary
AccessLog stderr
ErrorLog stderr
PageLog stderr
"""

SERVER = """
Listen {0}/socket
Browsing No
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""

QUEUE = """
<{kind} {name}>
Info {name}
DeviceURI paper:{paper}
State Idle
Accepting Yes
</{kind}>
"""

# The server starts it for each job. The sixth argument is the file to print.
BACKEND = """#!/bin/sh
paper=${DEVICE_URI#paper:}
cat "$6" >"$paper.wet" && mv "$paper.wet" "$paper"
"""


class PrintServer:
    def __init__(self, folder, queues):
        """The first queue is the default."""
        self.folder = pathlib.Path(folder)
        self.socket = self.folder / "socket"
        self._write_files(queues)
        self._give_away()
        with open(self.folder / "log", "w", encoding="utf-8") as log:
            self.process = subprocess.Popen(self._command(), stdin=subprocess.DEVNULL, stdout=log, stderr=log)

    def _write_files(self, queues):
        for name in ("root", "bin/backend", "cache", "state", "spool", "temporary"):
            (self.folder / name).mkdir(parents=True)
        (self.folder / "cups-files.conf").write_text(FILES.format(self.folder), encoding="utf-8")
        (self.folder / "cupsd.conf").write_text(SERVER.format(self.folder), encoding="utf-8")
        kinds = ["DefaultPrinter"] + ["Printer"] * (len(queues) - 1)
        texts = [QUEUE.format(kind=kind, name=name, paper=self.paper(name)) for kind, name in zip(kinds, queues)]
        (self.folder / "root/printers.conf").write_text("".join(texts), encoding="utf-8")
        backend = self.folder / "bin/backend/paper"
        backend.write_text(BACKEND, encoding="utf-8")
        backend.chmod(0o755)
        (self.folder / "bin/daemon").symlink_to("/usr/lib/cups/daemon")
        # A copy, because Ubuntu confines the installed one to the machine's own folders.
        shutil.copy(shutil.which("cupsd", path=os.environ["PATH"] + ":/usr/sbin"), self.folder)

    def _give_away(self):
        """Root would need accounts for the server's programs, so it hands the folder and the server to nobody."""
        if os.geteuid() == 0:
            for path in [self.folder, *self.folder.rglob("*")]:
                os.chown(path, NOBODY, NOBODY, follow_symlinks=False)

    def _command(self):
        files = [self.folder / "cupsd", "-f", "-c", self.folder / "cupsd.conf", "-s", self.folder / "cups-files.conf"]
        as_nobody = ["setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups"]
        return as_nobody + files if os.geteuid() == 0 else files

    def paper(self, queue):
        return self.folder / f"{queue}.pdf"

    def end(self):
        """Can be called again."""
        self.process.send_signal(signal.SIGTERM)
        self.process.wait(timeout=LIMIT)


@contextlib.contextmanager
def print_server(queues):
    """A running server. Programs started meanwhile print there."""
    with tempfile.TemporaryDirectory() as folder:
        server = PrintServer(folder, queues)
        try:
            wait_for("the print server's socket", server.socket.exists)
            os.environ["CUPS_SERVER"] = str(server.socket)
            yield server
        except BaseException:
            print((server.folder / "log").read_text(encoding="utf-8"))
            raise
        finally:
            os.environ.pop("CUPS_SERVER", None)
            server.end()
