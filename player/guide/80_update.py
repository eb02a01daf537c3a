"""An update that the site offers."""


def play(desk):
    desk.carrier.offer_update()
    desk.look_for_update()
    offer = desk.window_called("프로그램이 업데이트 되었습니다.")
    desk.find("새로워진 점", within=offer)
    desk.picture_of(offer, "update")
    desk.click(desk.find("닫기", "push button", offer))
    desk.gone("프로그램이 업데이트 되었습니다.")
