"""The guidance for new members, its menu of documents opened by the keyboard, and the program's own data."""


def play(desk):
    desk.window("[문자메시지]")
    desk.keys("alt+f", "n")
    guidance = desk.window_called("폰디라-프로(인사이드) 신규회원 가입")
    desk.find("전화", "label", guidance)
    desk.keys("alt+u")
    desk.picture("new-member")
    desk.keys("Escape", "alt+c")
    desk.gone("신규회원 가입")

    desk.keys("alt+h", "a")
    desk.find("버전:", "label", desk.window("정보"))
    desk.picture("about")
    desk.keys("Escape")
    desk.gone("정보")
