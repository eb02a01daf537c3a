"""The box of saved texts, and a new category in it."""

SAVED = {
    "내모음함": {
        "회의 안내": "[길동상사] 오늘 오후 3시 회의실에서 뵙겠습니다.",
        "휴무 안내": "설 연휴 동안 쉽니다. 급하신 일은 대표번호로 연락 주십시오.",
        "입금 확인": "입금이 확인되었습니다. 감사합니다.",
        "배송 출발": "주문하신 물품이 오늘 출발했습니다.",
        "생일 축하": "생일을 진심으로 축하드립니다! ♡",
        "견적 안내": "요청하신 견적서를 팩스로 보냈습니다.",
    },
    "거래처": {
        "방문 안내": "내일 오후 2시에 방문하겠습니다.",
        "새해 인사": "새해 복 많이 받으십시오.",
        "주차 안내": "주차는 지하 3층을 이용해 주십시오.",
    },
}


def play(desk):
    for category, texts in SAVED.items():
        folder = desk.app / "내모음함" / category
        folder.mkdir(parents=True, exist_ok=True)
        for title, text in texts.items():
            (folder / f"{title}.txt").write_bytes(text.encode("cp949"))
    main = desk.choose_kind("문자메시지", "인사")
    desk.click(desk.find("내 모음함", "push button", main))
    box = desk.window_called("내 모음함")
    desk.click(desk.find("회의 안내", "table cell", box))
    desk.picture_of(box, "box")
    desk.click(desk.find("거래처", "table cell", box))
    desk.find("방문 안내", "table cell", box)
    desk.click(desk.find("새 분류 추가", "push button", box))
    desk.fill(desk.find("분류등록", "text"), "동호회")
    desk.keys("Return")
    desk.gone("분류등록")
    desk.click(desk.find("거래처", "table cell", box))
    desk.find("방문 안내", "table cell", box)
    desk.picture_of(box, "box_folders")
    desk.keys("Escape")
    desk.gone("내 모음함")
