"""The box of saved texts: save the draft's text, write another one in a new category, apply one to the next draft."""
from expect import expect

SAVED = "회의가 내일 오전 10시로 바뀌었습니다."


def play(desk):
    main = desk.window("[문자메시지]")
    desk.start_anew(main)
    words = desk.find("문자 내용", "text", main)
    desk.fill(words, SAVED)
    desk.fill(desk.find("발송제목", "text", main), "회의 변경")
    desk.click(desk.find("내 모음함에 저장", "push button", main))
    desk.find("내 모음함에 '회의 변경' 제목으로 등록 되었습니다.")
    desk.picture("saved")
    desk.keys("Return")
    own = {"내모음함/회의 변경.txt": SAVED}
    expect("the saved texts", saved_texts(desk), own)
    desk.start_anew(main)

    desk.click(desk.find("내 모음함", "push button", main))
    box = desk.window_called("내 모음함")
    write_in_a_new_category(desk, box)
    expect("the saved texts", saved_texts(desk), {**own, "거래처/인사.txt": "첫 줄\r\n둘"})
    desk.picture("box")

    desk.click(desk.find("내모음함", "table cell", box))
    desk.click(desk.find("회의 변경", "table cell", box))
    desk.keys("alt+o")
    desk.gone("내 모음함")
    desk.picture("applied")
    expect("the text of the draft", desk.text_of(words), "[길동상사]" + SAVED)


def write_in_a_new_category(desk, box):
    desk.click(desk.find("새 분류 추가", "push button", box))
    desk.fill(desk.find("분류등록", "text"), "거래처")
    desk.keys("Return")
    desk.gone("분류등록")
    desk.find("거래처", "table cell", box)
    desk.fill(desk.find("제목", "text", box), "인사")
    desk.fill(desk.find("메시지내용", "text", box), "첫 줄\n둘")
    desk.click(desk.find("신규 메시지 등록", "push button", box))
    desk.find("저장 되었습니다.")
    desk.keys("Return")


def saved_texts(desk):
    """The texts of all saved files, by their paths in the box."""
    box = desk.app / "내모음함"
    return {str(file.relative_to(box)): file.read_bytes().decode("cp949") for file in box.rglob("*") if file.is_file()}
