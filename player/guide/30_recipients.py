"""Recipients: typed, from the card manager, out of a file; and what can be done with those in the list."""
LINES = """\
이름\t휴대폰\t직위
윤하준\t010-5550-0106\t차장
임서아\t010-5550-0107\t대리
장도현\t5550-01\t과장
강유진\t010-5550-0109\t사원
조은우\t휴대폰 없음\t부장
"""


def play(desk):
    main = desk.window("[문자메시지]")
    desk.fill(desk.find("이름", "text", main), "정하은")
    number = desk.find("받는 번호", "text", main)
    desk.fill(number, "010-5550-0108")
    desk.picture_of(main, "recipients")
    desk.keys("Return")
    desk.find("정하은", "table cell", main)

    people = desk.find("받는사람 목록", "tree", main)
    desk.give_focus(people)
    desk.keys("Home", "Down", "Down", "shift+F10")
    desk.await_context_menu()
    desk.picture_of(main, "options_menu")
    (desk.home / "거래처.txt").write_text(LINES)
    desk.keys("f")
    desk.click(desk.find("거래처.txt", "table cell", desk.window_called("받는사람 가져오기")))
    desk.keys("Return")
    # The file's dialog has the same title.
    desk.find("받는사람 3명을 추가했습니다.")
    pasted = desk.window_called("받는사람 가져오기")
    desk.picture_of(pasted, "pasted")
    desk.keys("Escape")
    desk.gone("받는사람 가져오기")

    desk.click(desk.find("명함DB 불러오기", "push button", main))
    picker = desk.window("발송대상 선택-")
    desk.find("윤가희", within=picker)
    desk.click(desk.find("협력사", within=picker))
    choose_cards(desk, picker, "조현람", 3)
    desk.picture_of(picker, "picker")
    desk.fill(desk.find("찾기", "text", picker), "차오름")
    desk.keys("Return")
    choose_cards(desk, picker, "류예진", 2)
    desk.picture_of(picker, "picker_search")
    desk.keys("Escape")
    desk.gone("발송대상 선택-")


def choose_cards(desk, picker, first, count):
    """Chooses so many cards from that one down."""
    desk.find("전체 135명 · 목록 11명", within=picker)
    desk.click(desk.find(first, within=picker))
    for chosen in range(1, count):
        desk.find(f"전체 135명 · 목록 11명 · 선택 {chosen}명", within=picker)
        desk.keys("shift+Down")
    desk.find(f"전체 135명 · 목록 11명 · 선택 {count}명", within=picker)
