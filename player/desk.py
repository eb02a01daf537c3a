"""The desk of a user: finds what is on the screen by the names that a screen reader says, and acts with real keys and clicks."""
import os
import re
import subprocess
import time

import pyatspi

# Milliseconds between characters: Hangul is typed by changing the keyboard's map, which programs learn with a delay.
TYPING_DELAY = "100"
PATIENCE = 30  # seconds until something that ought to appear is missed


class Desk:
    def __init__(self, results):
        self.results = results
        # The user's own folder, where the scenes lay the files that he picks.
        self.home = results / "home"
        self.home.mkdir(exist_ok=True)
        self.pictures = []
        self.program = None

    # The program.

    def start(self):
        korean = {"HOME": str(self.home), "LC_TIME": "ko_KR.UTF-8", "LC_NUMERIC": "ko_KR.UTF-8"}
        self.program = subprocess.Popen(["./zent"], cwd=self.results / "app", env={**os.environ, **korean})

    def close_program(self):
        active = lambda window: window.getState().contains(pyatspi.STATE_ACTIVE)
        self._wait("the focus in a window", lambda: any(active(window) for window in self.windows()))
        self.keys("alt+F4")
        self.program.wait(PATIENCE)

    def kill_program(self):
        if self.program.poll() is None:
            self.program.kill()

    # What is on the screen.

    def windows(self):
        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == self.program.pid:
                yield from (window for window in application if window is not None)

    def find(self, name, role=None, within=None):
        """Waits for something shown whose name begins with `name`."""
        return self._wait(f"'{name}'", lambda: self._search(name, role, within))

    def window(self, title):
        """Waits for a window whose title contains `title`."""
        return self._wait(f"window '{title}'", lambda: next((w for w in self.windows() if title in w.name), None))

    def window_called(self, title):
        """Waits for a window whose whole title this is."""
        return self._wait(f"window '{title}'", lambda: next((w for w in self.windows() if w.name == title), None))

    def gone(self, title):
        self._wait(f"the end of window '{title}'", lambda: all(title not in w.name for w in self.windows()))

    def _search(self, name, role, within):
        for window in [within] if within is not None else list(self.windows()):
            found = pyatspi.findDescendant(window, lambda thing: self._matches(thing, name, role))
            if found is not None:
                return found
        return None

    @staticmethod
    def _matches(thing, name, role):
        try:
            return (
                thing.name.startswith(name)
                and (role is None or thing.getRoleName() == role)
                and thing.getState().contains(pyatspi.STATE_SHOWING)
            )
        except Exception:  # it went away meanwhile
            return False

    def _wait(self, what, look):
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            if self.program.poll() is not None:
                raise RuntimeError(f"the program ended while {what} was awaited")
            found = look()
            if found:
                return found
            time.sleep(0.1)
        raise RuntimeError(f"{what} never came")

    # Keys, clicks, pictures.

    def keys(self, *keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", "--delay", "60", *keys], check=True)

    def write(self, text):
        """Types the text; a line end presses Enter and a tab Tab."""
        for piece in re.split("([\n\t])", text):
            if piece in ("\n", "\t"):
                self.keys("Return" if piece == "\n" else "Tab")
            elif piece:
                subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", TYPING_DELAY, piece], check=True)

    def fill(self, field, text):
        """Writes in place of what the field holds."""
        self.click(field)
        self._wait("the focus", lambda: field.getState().contains(pyatspi.STATE_FOCUSED))
        self.keys("ctrl+a")
        self.write(text)

    def tick(self, box):
        self.click(box)
        self._wait("the tick", lambda: box.getState().contains(pyatspi.STATE_CHECKED))

    def choose_file(self, title, name, picture=None):
        """Picks a file of the user's own folder in the file dialog of that title."""
        dialog = self.window(title)
        self.click(self.find(name, "table cell", dialog))
        if picture:
            self.picture(picture)
        self.keys("Return")
        self.gone(title)

    # What most scenes do.

    def choose_kind(self, kind, subject):
        """Clicks the kind's tab, writes the subject and returns the main window, which shows the kind."""
        self.click(self.find(kind, "page tab", self.window("[")))
        main = self.window(f"[{kind}]")
        self.fill(self.find("발송제목", "text", main), subject)
        return main

    def add_recipient(self, main, name, number):
        self.fill(self.find("이름", "text", main), f"{name}\n{number}\n")

    def send(self, main, confirmation=None):
        """Sends the draft and closes the report; returns when the main window is the user's again."""
        self.click(self.find("보내기", "push button", main))
        self.window("메시지 발송확인")
        if confirmation:
            self.picture(confirmation)
        self.keys("Return")
        self.window("등록완료")
        self.keys("Return")
        self.gone("등록완료")

    def click(self, thing):
        box = thing.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        x, y = box.x + box.width // 2, box.y + box.height // 2
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "sleep", "0.1", "click", "1"], check=True)

    def say(self, text):
        """Speaks into the microphone, until all is said."""
        voice = subprocess.run(["espeak-ng", "-v", "ko", "--stdout", text], check=True, stdout=subprocess.PIPE)
        subprocess.run(["paplay", "--device=wire"], input=voice.stdout, check=True)

    def picture(self, name):
        time.sleep(0.3)
        path = self.results / f"{len(self.pictures) + 1:02}-{name}.png"
        subprocess.run(["import", "-window", "root", str(path)], check=True)
        self.pictures.append(path)
