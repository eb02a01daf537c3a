"""Recipients out of the card manager: picked from its folders and by a search, and handed over by it in files."""


def play(desk):
    main = desk.choose_kind("문자메시지", "신제품 안내")
    desk.click(desk.find("명함DB 불러오기", "push button", main))
    picker = desk.window("발송대상 선택-")
    desk.find("윤가희", within=picker)
    desk.picture("picker")

    desk.click(desk.find("협력사", within=picker))
    desk.picture("picker-folder")

    desk.fill(desk.find("찾기", "text", picker), "차오름\n")
    desk.find("류예호", within=picker)
    desk.click(desk.find("류예호", within=picker))
    desk.keys("shift+Down", "shift+Down")
    desk.picture("picker-search")
    desk.keys("alt+a")
    desk.keys("Escape")
    desk.gone("발송대상 선택-")
    desk.find("류예호", within=main)
    desk.picture("picked")

    hand_over(desk, "3", [("박새벽", "02-111-2222", "3급 부장"), ("", "010-3333-4444", "대리"), ("류예호", "010-0000-0004", "")])
    desk.find("박새벽", within=desk.window("[음성메시지]"))
    desk.picture("handed-over")


def hand_over(desk, tab, recipients):
    """As the card manager does it: first the recipients, then the file that says so."""
    folder = desk.results / "app" / "temp"
    folder.mkdir(exist_ok=True)
    lines = "".join(f"0\t{name}\t{number}\t{title}\r\n" for name, number, title in recipients)
    (folder / "tmpman.txt").write_bytes(lines.encode("cp949"))
    (folder / "isend.text").write_bytes(tab.encode("ascii"))
