"""A text with voice: the service speaks a text, and the recipient answers by pressing a number."""


def play(desk):
    main = desk.choose_kind("문자플러스", "정기 모임 참석 여부")
    desk.fill(desk.find("음성으로 바꿀 문자", "text", main), "정기 모임에 오시면 1번, 못 오시면 2번을 눌러 주십시오.")
    desk.tick(desk.find("답변받기", "check box", main))
    desk.click(desk.find("답변받기 설명", "push button", main))
    desk.window("답변받기 보충설명")
    desk.picture("answers-explained")
    desk.keys("Escape")
    desk.gone("답변받기 보충설명")
    desk.add_recipient(main, "박민수", "010-4567-8901")
    desk.picture("text-with-voice")
    desk.send(main)
