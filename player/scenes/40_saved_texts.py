"""The box of saved texts: save the draft's text with MySave, open the box, apply a text to the next draft."""


def start_anew(desk, main):
    desk.click(desk.find("새로작성", "push button", main))
    desk.find("모든 내용을 삭제하고 새로 작성하시겠습니까?")
    desk.keys("alt+y")


def play(desk):
    main = desk.window("[문자메시지]")
    start_anew(desk, main)
    desk.fill(desk.find("문자 내용", "text", main), "회의가 내일 오전 10시로 바뀌었습니다.")
    desk.fill(desk.find("발송제목", "text", main), "회의 변경")
    desk.click(desk.find("내 모음함에 저장", "push button", main))
    desk.find("내 모음함에 '회의 변경' 제목으로 등록 되었습니다.")
    desk.picture("saved")
    desk.keys("Return")
    start_anew(desk, main)

    desk.click(desk.find("내 모음함", "push button", main))
    box = desk.window_called("내 모음함")
    desk.click(desk.find("회의 변경", "table cell", box))
    desk.picture("box")
    desk.keys("alt+o")
    desk.gone("내 모음함")
    desk.picture("applied")
