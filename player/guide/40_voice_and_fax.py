"""A text with voice, a voice message and a fax, each of which is sent, so that the results have something to show."""

INVITATION = "정기 모임에 오시면 1번, 못 오시면 2번을 눌러 주십시오."
ANNOUNCEMENT = "안녕하세요. 길동상사입니다. 내일부터 사흘 동안 사무실을 옮깁니다. 급하신 일은 휴대전화로 연락 주십시오."


def play(desk):
    desk.start_anew(desk.window("[문자메시지]"))
    main = desk.choose_kind("문자플러스", "정기 모임 참석 여부")
    desk.fill(desk.find("음성으로 바꿀 문자", "text", main), INVITATION)
    replies = desk.find("답변받기", "check box", main)
    desk.tick(replies)
    desk.keys("Tab", "2")
    for name, number in [("김민준", "010-5550-0101"), ("이서연", "010-5550-0102")]:
        desk.add_recipient(main, name, number)
    desk.picture_of(main, "plus")
    desk.send(main)
    desk.click(replies)

    desk.start_anew(main)
    main = desk.choose_kind("음성메시지", "사무실 이전 안내")
    desk.fill(desk.find("음성으로 바꿀 문자", "text", main), ANNOUNCEMENT)
    for name, number in [("정수진", "02-5550-0117"), ("박도윤", "010-5550-0103")]:
        desk.add_recipient(main, name, number)
    desk.picture_of(main, "voice")
    desk.send(main)

    desk.start_anew(main)
    main = desk.choose_kind("팩스메시지", "견적서와 약도")
    for document in ("견적서.hwp", "사무실 약도.jpg"):
        (desk.home / document).write_bytes(b"." * 150_000)
        desk.click(desk.find("보낼문서 찾아보기", "push button", main))
        desk.choose_file("팩스문서 열기", document)
    for name, number in [("최영호", "02-5550-0132"), ("오세라", "031-5550-0148")]:
        desk.add_recipient(main, name, number)
    desk.picture_of(main, "fax")
    desk.send(main)
