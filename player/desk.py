"""The desk of a user: finds what is on the screen by the names that a screen reader says, and acts with real keys and clicks."""
import datetime
import os
import pathlib
import pwd
import re
import subprocess
import time

import pyatspi

from carrier import Carrier
from expect import PATIENCE, Unexpected, wait_for
from keyboard import Keyboard


class Desk:
    def __init__(self, results):
        self.results = results
        # The user's own folder, where the scenes put the files that the user picks.
        self.home = results / "hong"
        self.home.mkdir(exist_ok=True)
        self.app = results / "app"
        self.carrier = Carrier(self.app)
        self.keyboard = Keyboard()
        self.pictures = []
        # A cached page or label may be older than what the screen shows.
        pyatspi.Registry.getDesktop(0).set_cache_mask(pyatspi.Atspi.Cache.NONE)
        self.program = None

    # The program.

    def start(self):
        self.run([self.app / "zent"], self.home)

    def run(self, command, home, **desktop):
        korean = {"HOME": str(home), "LC_TIME": "ko_KR.UTF-8", "LC_NUMERIC": "ko_KR.UTF-8"}
        # A menu entry starts it from any folder.
        self.program = subprocess.Popen(command, cwd="/", env={**os.environ, **korean, **desktop})

    def forget_draft(self):
        """Removes the draft that an earlier play of this folder has left in the user's own directory."""
        name = 0xCBF29CE484222325
        for byte in str(self.app.resolve()).encode():
            name = (name ^ byte) * 0x100000001B3 % 2**64
        settings = pathlib.Path(pwd.getpwuid(os.getuid()).pw_dir) / ".config" / "cardvale"
        for file in settings.glob(f"draft-{name:016x}.db*"):
            file.unlink()

    def close_program(self):
        self._wait_for_focus()
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
        return self.wait(f"'{name}'", lambda: self._search(name, role, within))

    def window(self, title):
        """Waits for a window whose title contains `title`."""
        return self.wait(f"window '{title}'", lambda: next((w for w in self.windows() if title in w.name), None))

    def window_called(self, title):
        """Waits for a window with exactly this title."""
        return self.wait(f"window '{title}'", lambda: next((w for w in self.windows() if w.name == title), None))

    def gone(self, title):
        self.wait(f"the end of window '{title}'", lambda: all(title not in w.name for w in self.windows()))
        self._wait_for_focus()

    def _wait_for_focus(self):
        """Waits until a window of the program has the focus: clicks and keys before that are lost."""
        self.wait("the focus in a window", lambda: any(self._has_focus(window) for window in self.windows()))

    @staticmethod
    def _has_focus(window):
        return window.getState().contains(pyatspi.STATE_ACTIVE)

    @staticmethod
    def text_of(field):
        return field.queryText().getText(0, -1)

    def rows(self, name, within):
        """The rows of the list of that name: for each whether it is ticked, then the texts of its other cells."""
        things = list(self.find(name, "tree", within))
        columns = [thing.getRoleName() for thing in things].count("table column header")
        cells = things[columns:]
        return [
            [cells[first].getState().contains(pyatspi.STATE_CHECKED)]
            + [cell.name for cell in cells[first + 1 : first + columns]]
            for first in range(0, len(cells), columns)
        ]

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

    def wait(self, what, look):
        """Waits until `look` finds something while the program runs, and returns it."""

        def look_while_it_runs():
            if self.program.poll() is not None:
                raise Unexpected(f"the program ended while {what} was awaited")
            return look()

        return wait_for(what, look_while_it_runs)

    # Keys, clicks, pictures.

    def keys(self, *keys):
        self.keyboard.press(*keys)

    def write(self, text):
        """Types the text; a line end presses Enter, a tab character Tab."""
        for piece in re.findall("\n|\t|[^\n\t]+", text):
            if piece in ("\n", "\t"):
                self.keys("Return" if piece == "\n" else "Tab")
            else:
                self.keyboard.type(piece)

    def fill(self, field, text):
        """Replaces the field's text by typing."""
        # A window that has just opened may lose the focus once more; then the text is typed again.
        self.wait(f"'{text}' in its field", lambda: self._clicked_into(field) and self._written(field, text))

    def give_focus(self, field):
        # A window may miss a click just after a box over it has closed.
        self.wait("the focus", lambda: self._clicked_into(field))

    def _clicked_into(self, field):
        self.click(field)
        return self._soon(lambda: field.getState().contains(pyatspi.STATE_FOCUSED))

    def _written(self, field, text):
        self.keys("ctrl+a")
        self.write(text)
        return self._soon(lambda: self.text_of(field) == text)

    @staticmethod
    def _soon(look):
        end = time.monotonic() + 1
        while not look():
            if time.monotonic() > end:
                return False
            time.sleep(0.05)
        return True

    def tick(self, box):
        """Ticks a check box, or chooses an option."""
        self.wait("the tick", lambda: self._clicked_on(box))

    def _clicked_on(self, box):
        ticked = lambda: box.getState().contains(pyatspi.STATE_CHECKED)
        if not ticked():
            self.click(box)
        return self._soon(ticked)

    def choose_file(self, title, name, picture=None):
        """Picks a file from the user's own folder in the file dialog with that title."""
        dialog = self.window(title)
        self.click(self.find(name, "table cell", dialog))
        if picture:
            self.picture(picture)
        self.keys("Return")
        self.gone(title)

    # What most scenes do.

    def enter_login(self):
        """Types the demo account into the login window and returns that."""
        login = self.window("로그인")
        self.fill(self.find("사용자 아이디", "text", login), "demo")
        self.write("\tdemo1234")
        return login

    def log_in(self):
        self.enter_login()
        self.keys("Return")
        self.gone("로그인")

    def choose_kind(self, kind, subject):
        """Clicks the kind's tab, writes the subject and returns the main window."""
        self.click(self.find(kind, "page tab", self.window("[")))
        main = self.window(f"[{kind}]")
        self.fill(self.find("발송제목", "text", main), subject)
        return main

    def add_recipient(self, main, name, number):
        name_field = self.find("이름", "text", main)
        self.fill(name_field, name)
        self.fill(self.find("받는 번호", "text", main), number)
        self.keys("Return")
        self.wait(f"{name} in the list", lambda: self.text_of(name_field) == "")

    def start_anew(self, main):
        self.click(self.find("새로작성", "push button", main))
        self.find("모든 내용을 삭제하고 새로 작성하시겠습니까?")
        self.keys("alt+y")
        self.find("전체>0>", "label", main)

    def schedule(self, main):
        """Schedules the draft for the last minute of an hour, years ahead; returns that time in the carrier's spelling."""
        self.tick(self.find("예약전송", "check box", main))
        date = self.find("발송예약 시간", "spin button", main)
        self.give_focus(date)
        # Shortly before midnight the earliest schedule is tomorrow's.
        year, month, day = map(int, re.match(r"(\d+)-(\d+)-(\d+)", self.text_of(date)).groups())
        # Four years ahead every date of this year exists, 29 February too.
        self.keys("Home", "Up", "Up", "Up", "Up", "End", "Tab", "Home", "Tab", "End")
        return datetime.date(year + 4, month, day).strftime("%Y%m%d005900")

    def send_at_once(self, main):
        """Chooses to send the draft at once."""
        self.tick(self.find("즉시전송", "check box", main))

    def ask_to_send(self, main):
        """Presses send and waits for the question whether the draft is right, which Enter answers with yes."""
        self.click(self.find("보내기", "push button", main))
        self.window("메시지 발송확인")

    def start_sending(self, main, confirmation=None):
        """Sends the draft and waits for the window that shows the job's progress."""
        self.ask_to_send(main)
        if confirmation:
            self.picture(confirmation)
        self.keys("Return")
        self.gone("메시지 발송확인")

    def read_report(self, picture=None):
        """Waits for the report and closes it; returns how many recipients were registered, failed and were stopped."""
        window = self.window("등록완료")
        report = self.text_of(self.find("등록 결과", "text", window))
        if picture:
            self.picture(picture)
        self.wait("the focus in the report", lambda: self._has_focus(window))
        self.keys("Return")
        self.gone("등록완료")
        return [int(number) for number in re.findall(r"(?:성공|실패|중지): ([0-9]+)건", report)]

    def send(self, main, confirmation=None):
        """Sends the draft and returns the numbers of the report, once the main window can be used again."""
        self.start_sending(main, confirmation)
        return self.read_report()

    def look_for_update(self):
        main = self.window("Cardvale 폰디라 통합메시징 서비스[")
        self.click(self.find("도움말", "menu item", main))
        self.click(self.find("업데이트 확인", "menu item"))

    def note_while_away(self, act):
        """Does something and turns to another desktop at once; waits for the note that calls the user back, returns its lines."""
        log = self.results / "notes.log"
        with open(log, "w") as file:
            monitor = subprocess.Popen(["dbus-monitor", "member='Notify'"], stdout=file)
        try:
            act()
            subprocess.run(["xdotool", "set_desktop", "1"], check=True)
            note = self.wait("the note", lambda: re.search(r'string "([^"]*)"\s+array', log.read_text()))
        finally:
            monitor.terminate()
            subprocess.run(["xdotool", "set_desktop", "0"], check=True)
        return note[1].splitlines()

    def click(self, thing):
        box = thing.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        x, y = box.x + box.width // 2, box.y + box.height // 2
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "sleep", "0.1", "click", "1"], check=True)

    @staticmethod
    def press(thing):
        """Presses a button or a tab as a screen reader does, also behind a modal window."""
        action = thing.queryAction()
        names = [action.getName(number) for number in range(action.nActions)]
        action.doAction(names.index("Press"))

    def say(self, text):
        """Speaks into the microphone to the end; returns the sound file that was played."""
        spoken = self.results / "spoken.wav"
        subprocess.run(["espeak-ng", "-v", "ko", "-w", str(spoken), text], check=True)
        subprocess.run(["paplay", "--device=wire", str(spoken)], check=True)
        return spoken

    def picture(self, name):
        time.sleep(0.3)
        path = self.results / f"{len(self.pictures) + 1:02}-{name}.png"
        subprocess.run(["import", "-window", "root", str(path)], check=True)
        self.pictures.append(path)
