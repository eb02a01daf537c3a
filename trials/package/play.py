#!/usr/bin/python3
"""Plays one scene with the installed program, started from its menu entry."""
import os
import pathlib
import signal
import stat
import subprocess
import sys

sys.path.insert(0, "/opt/player")
from carrier import TEXT, Carrier, registration
from desk import Desk
from expect import expect, wait_for

PRODUCT, DEMO = "cardvale-messaging", "cardvale-messaging-demo"
BOX = "Cardvale 폰디라 통합메시징 서비스"
TEXT_TO_KEEP = "내일 오전 10시에 뵙겠습니다."


class Started:
    """A program that somebody else has started."""

    def __init__(self, name):
        self.pid = wait_for(f"the program {name}", lambda: next(self._running(name), None))

    @staticmethod
    def _running(name):
        for process in pathlib.Path("/proc").glob("[0-9]*"):
            try:
                if os.readlink(process / "exe").endswith(f"/{name}/zent"):
                    yield int(process.name)
            except OSError:  # another user's, or gone
                pass

    def poll(self):
        status = pathlib.Path(f"/proc/{self.pid}/stat")
        return None if status.exists() and ") Z " not in status.read_text() else 0

    def wait(self, patience):
        wait_for("the program's end", lambda: self.poll() is not None)

    def kill(self):
        os.kill(self.pid, signal.SIGKILL)


class InstalledDesk(Desk):
    def __init__(self, package):
        super().__init__(pathlib.Path.home() / "pictures")
        self.package = package
        self.app = pathlib.Path.home() / ".local/share" / package
        self.settings = pathlib.Path.home() / ".config" / package
        self.carrier = Carrier(self.app)

    def start(self):
        subprocess.Popen(["gio", "launch", f"/usr/share/applications/{self.package}.desktop"], cwd="/")
        self.program = Started(self.package)

    def picture(self, name):
        super().picture(f"{pathlib.Path.home().name}-{self.package}-{name}")

    def log_in(self):
        login = self.window("로그인")
        self.fill(self.find("사용자 아이디", "text", login), "demo")
        self.write("\tdemo1234\n")
        self.gone("로그인")
        return self.window("[문자메시지]")


def without_carrier(desk):
    """The program alone starts, and names the carrier's library when it is wanted."""
    login = desk.window("로그인")
    desk.picture("login")
    desk.fill(desk.find("사용자 아이디", "text", login), "demo")
    desk.write("\tdemo1234\n")
    desk.find("오류번호:48")
    desk.picture("no-carrier")
    for box in BOX, "로그인 실패":
        desk.click(desk.find("확인", "push button", desk.window_called(box)))
    desk.give_focus(desk.find("사용자 아이디", "text", login))
    desk.keys("Escape")
    desk.gone("로그인")


def without_pages(desk):
    """The packages that a user can leave out are named when they are wanted."""
    main = desk.log_in()
    desk.click(desk.find("발송결과", "push button", main))
    desk.find("웹 페이지 모듈(zent_web.so)이 설치되어 있지 않습니다. cardvale-messaging-pages")
    desk.picture("no-pages")
    desk.keys("Escape")
    desk.gone("발송결과")


def first_job(desk):
    main = desk.log_in()
    words = desk.find("문자 내용", "text", main)
    desk.fill(words, TEXT_TO_KEEP)
    desk.fill(desk.find("발송제목", "text", main), "약속")
    desk.click(desk.find("내 모음함에 저장", "push button", main))
    desk.find("내 모음함에 '약속' 제목으로 등록 되었습니다.")
    desk.keys("Return")
    desk.add_recipient(main, "홍길동", "010-5550-0101")
    expect("the report", desk.send(main, "confirmation"), [1, 0, 0])
    desk.picture("sent")
    desk.carrier.expect(
        registration(TEXT, "약속", [("홍길동", "01055500101")], sms_content=TEXT_TO_KEEP, callback="0212345678")
    )
    subprocess.run([desk.package, "hand-over"], check=True)
    desk.find("김하늘", "table cell", main)
    desk.picture("handed-over")
    desk.click(desk.find("발송결과", "push button", main))
    desk.find("약속", "link", desk.window_called("발송결과"))
    desk.picture("results")
    desk.keys("Escape")
    desk.gone("발송결과")
    for folder in (desk.app, desk.settings):
        expect(f"who may read {folder}", stat.filemode(folder.stat().st_mode), "drwx------")


def another_user(desk):
    """A user of the same machine finds nothing of the first one's."""
    main = desk.log_in()
    expect("the first one's text", list((desk.app / "내모음함").rglob("약속.txt")), [])
    expect("the recipients", desk.rows("받는사람 목록", main), [])


def after_the_upgrade(desk):
    main = desk.log_in()
    desk.click(desk.find("내 모음함", "push button", main))
    box = desk.window_called("내 모음함")
    desk.find("약속", "table cell", box)
    desk.picture("kept")
    desk.keys("Escape")
    desk.gone("내 모음함")
    expect("the ledger of both versions", desk.carrier.calls("fn_x_submit"), 1)


def main():
    scene = sys.argv[1]
    desk = InstalledDesk(PRODUCT if scene == "without_carrier" else DEMO)
    desk.start()
    try:
        globals()[scene](desk)
        desk.close_program()
    except Exception:
        desk.picture("failed")
        raise
    finally:
        if desk.program.poll() is None:
            desk.program.kill()


if __name__ == "__main__":
    sys.exit(main())
