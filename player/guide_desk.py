"""The desk at which the guide's pictures are taken: in a home of its own, of single windows, as much alike each time as the
clock allows."""
import os
import shutil
import subprocess
import time

from desk import Desk

# The folder of the play is /home, and the user database knows its user there. So the settings, login and draft are new, the
# user's own stay as they are, and the paths in the pictures are those of an office worker.
IN_A_HOME_OF_ITS_OWN = """
    mount --bind "$0/passwd" /etc/passwd && mount --bind "$0" /home &&
    exec setpriv --ambient-caps=-all --inh-caps=-all /home/app/zent
"""
NAMESPACE = ["unshare", "--user", "--map-current-user", "--keep-caps", "--mount"]
# The desktop whose settings say that cursors do not blink.
DESKTOP = {"XDG_CURRENT_DESKTOP": "KDE", "KDE_FULL_SESSION": "true", "KDE_SESSION_VERSION": "5"}
DESKTOP_SETTINGS = "[KDE]\nCursorBlinkRate=0\nSingleClick=false\n"


class GuideDesk(Desk):
    def __init__(self, results):
        super().__init__(results)
        (results / "passwd").write_text(f"hong:x:{os.getuid()}:{os.getgid()}:홍길동:/home/{self.home.name}:/bin/sh\n")
        (self.home / ".config").mkdir(exist_ok=True)
        (self.home / ".config" / "kdeglobals").write_text(DESKTOP_SETTINGS)
        self._taken = results / "pictures"
        self._taken.mkdir(exist_ok=True)

    def start(self):
        self.run([*NAMESPACE, "sh", "-c", IN_A_HOME_OF_ITS_OWN, self.results], f"/home/{self.home.name}", **DESKTOP)

    def await_context_menu(self):
        """A screen reader is not told of such a menu; on the X server it is a window with the program's name."""
        self.wait("the menu", lambda: _number_of("zent"))

    def picture_of(self, window, name, moving=False):
        """Takes the window with its frame and with what stands in front of it, once nothing moves in it any more."""
        # Away from the windows the mouse shows no tip and lights up no button.
        subprocess.run(["xdotool", "mousemove", "1279", "899"], check=True)
        self._wait_for_focus()
        number = self.wait(f"window '{window.name}' on the screen", lambda: _number_of(window.name))
        shots = [_shot(number)]

        def rests():
            shots.append(_shot(number))
            return moving or shots[-1] == shots[-2]

        self.wait(f"rest in window '{window.name}'", rests)
        (self._taken / f"{name}.png").write_bytes(shots[-1])

    def put_pictures_into(self, docs):
        """Replaces the guide's pictures with those taken, and the one in README.md."""
        shutil.rmtree(docs / "guide" / "pictures", ignore_errors=True)
        shutil.copytree(self._taken, docs / "guide" / "pictures")
        shutil.copy(self._taken / "text.png", docs / "screenshots" / "draft.png")


def _number_of(title):
    """The X server's number of the window with that title, if it is shown."""
    numbers = _lines_of("xdotool", "search", "--onlyvisible", "--class", "zent")
    return next((number for number in numbers if _lines_of("xdotool", "getwindowname", number) == [title]), None)


def _lines_of(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, text=True).stdout.splitlines()


def _shot(number):
    time.sleep(0.2)
    small = ["+dither", "-colors", "256", "-strip", "-define", "png:exclude-chunks=date,time"]
    shot = ["import", "-frame", "-screen", "-window", number, *small, "PNG8:-"]
    return subprocess.run(shot, check=True, stdout=subprocess.PIPE).stdout
