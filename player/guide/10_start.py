"""The first start: the login, and the main window behind it."""


def play(desk):
    login = desk.enter_login()
    desk.picture_of(login, "login")
    desk.keys("Return")
    desk.gone("로그인")
    main = desk.window("[문자메시지]")
    desk.find("가입자 demo[홍길동]", "push button", main)
    desk.picture_of(main, "start")
