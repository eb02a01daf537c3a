"""Looks for an update: the site has none."""


def play(desk):
    main = desk.window("Cardvale 폰디라 통합메시징 서비스[")
    desk.click(desk.find("도움말", "menu item", main))
    desk.click(desk.find("업데이트 확인", "menu item"))
    desk.find("모든 파일이 최신 버전이므로")
    desk.picture("no-update")
    desk.keys("Return")
