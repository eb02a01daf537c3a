"""The power goes with a draft on the screen. The next start offers the draft, and keeps on doing so after a no."""
from card_manager import hand_over

WORDS = "[길동상사] 회의가 내일 오전 10시로 바뀌었습니다."


def play(desk):
    desk.start_anew(desk.window("["))
    main = desk.choose_kind("문자메시지", "회의 시간 변경")
    hand_over(desk.app, 1, [("김민준", "010-5550-0101", "대리"), ("이서연", "010-5550-0102", "과장")])
    desk.find("전체>2>대상>2", "label", main)
    desk.fill(desk.find("문자 내용", "text", main), WORDS)
    desk.wait("the draft on the disk", lambda: is_kept(desk.home))
    desk.kill_program()
    desk.program.wait()
    desk.start()
    desk.log_in()
    main = desk.window("[문자메시지]")
    desk.find("지난번에 작성하던 메시지를 되살리시겠습니까?")
    desk.picture_of(main, "kept_draft_question")
    desk.keys("Escape")
    desk.find("지난번에 작성하던 메시지: ", "label", main)
    desk.picture_of(main, "kept_draft")


def is_kept(home):
    return any(WORDS.encode("utf-16-le") in file.read_bytes() for file in home.rglob("draft-*"))
