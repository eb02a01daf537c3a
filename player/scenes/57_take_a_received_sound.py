"""A recording made by telephone: saved from the inbox page and attached to a voice message."""
from carrier import SOUND, path_of, registration

NAME = "0303 번호로 녹음한 안내문"


def play(desk):
    main = desk.choose_kind("음성메시지", "녹음 안내")
    desk.click(desk.find("팩스수신", "push button", main))
    desk.window_called("팩스수신")
    desk.click(desk.find(NAME, "link"))
    desk.window("파일 저장")
    desk.picture("where-to-save")
    desk.keys("Return")
    desk.gone("파일 저장")
    taken = desk.home / f"{NAME}.wav"
    desk.wait("the sound", taken.exists)
    desk.picture("sound-taken")
    desk.keys("Escape")
    desk.gone("팩스수신")
    desk.click(desk.find("파일첨부", "page tab", main))
    desk.click(desk.find("음성파일 찾아보기", "push button", main))
    desk.choose_file("음성파일 선택", taken.name, "sound-to-attach")
    desk.add_recipient(main, "오세라", "02-987-6543")
    desk.send(main)
    desk.carrier.expect(
        registration(SOUND, "녹음 안내", [("오세라", "029876543")], [path_of(taken)], callback="0212345678")
    )
