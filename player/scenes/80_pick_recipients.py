"""Recipients from the card manager: picked from its folders and from a search, and handed over in its files."""
from card_manager import hand_over
from expect import expect

# Between them stands a card without a mobile number.
PICKED = [[True, "류예호", "010-0000-0004", "", "Manager"], [True, "류예진", "010-0000-0029", "", "과장"]]
# A title with digits keeps only these.
HANDED_OVER = [[True, "박새벽", "02-111-2222", "", "3"], [True, "이름없음", "010-3333-4444", "", "대리"]]


def play(desk):
    main = desk.choose_kind("문자메시지", "신제품 안내")
    desk.start_anew(main)
    desk.click(desk.find("명함DB 불러오기", "push button", main))
    picker = desk.window("발송대상 선택-")
    desk.find("윤가희", within=picker)
    desk.picture("picker")

    desk.click(desk.find("협력사", within=picker))
    desk.picture("picker-folder")

    desk.fill(desk.find("찾기", "text", picker), "차오름")
    desk.keys("Return")
    desk.window("발송대상 선택-135/11/")
    desk.click(desk.find("류예호", within=picker))
    desk.window("발송대상 선택-135/11/1")
    for chosen in (2, 3):
        desk.keys("shift+Down")
        desk.window(f"발송대상 선택-135/11/{chosen}")
    desk.picture("picker-search")
    desk.keys("alt+a")
    desk.find("2명 추가", "alert", picker)
    desk.keys("Escape")
    desk.gone("발송대상 선택-")
    desk.find("전체>2>대상>2", "label", main)
    desk.picture("picked")
    expect("the recipients picked", desk.rows("받는사람 목록", main), PICKED)

    repeated = ("류예호", "010-0000-0004", "")
    hand_over(desk.app, 3, [("박새벽", "02-111-2222", "3급 부장"), ("", "010-3333-4444", "대리"), repeated])
    main = desk.window("[음성메시지]")
    desk.find("전체>4>대상>4", "label", main)
    desk.picture("handed-over")
    expect("the recipients with those handed over", desk.rows("받는사람 목록", main), PICKED + HANDED_OVER)
