"""Checks for an update: the site has none; then it has one, which is put off at first and then installed."""
from expect import PATIENCE, expect, wait_for

LOG_IN = "로그인"


def put_installer(app):
    installer = app / "i_update.exe"
    installer.write_text("#!/bin/sh\ncat i_autorun.ini >found\nmv found installer-was-here\n")
    installer.chmod(0o755)


def play(desk):
    app = desk.app
    desk.look_for_update()
    desk.find("모든 파일이 최신 버전이므로")
    desk.picture("no-update")
    desk.keys("Return")

    desk.carrier.offer_update()
    put_installer(app)
    desk.look_for_update()
    offer = desk.window("프로그램이 업데이트 되었습니다.")
    desk.find("새로워진 점", within=offer)
    desk.picture("update")
    # The window opened by itself, so an Enter that was meant for the draft must not answer it.
    desk.keys("Return")
    desk.click(desk.find("닫기", "push button", offer))
    desk.gone("프로그램이 업데이트 되었습니다.")
    expect("a sign for the installer", (app / "i_autorun.ini").exists(), False)

    desk.look_for_update()
    offer = desk.window("프로그램이 업데이트 되었습니다.")
    desk.click(desk.find("업데이트 시작", "push button", offer))
    desk.program.wait(PATIENCE)
    trace = app / "installer-was-here"
    wait_for("the installer", trace.exists)
    expect("the sign that the installer finds", trace.read_text(), "[UPDATE]\nAUTORUN=OK\n")

    # The installer's taking over ends the program at once; the draft is there again.
    desk.start()
    desk.window(LOG_IN)
    desk.keys("Escape")
    desk.find("지난번에 작성하던 메시지를 되살리시겠습니까?")
    desk.keys("Escape")
    desk.find("지난번에 작성하던 메시지: ")
    desk.picture("kept-draft")
