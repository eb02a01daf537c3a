"""After a send: the results page in the service's own form, with what was registered a moment ago on it."""


def play(desk):
    main = desk.window("[문자메시지]")
    desk.click(desk.find("발송결과", "push button", main))
    page = desk.window_called("발송결과")
    desk.find("[길동상사] 안녕하세요. 오", "link", page)
    desk.find("등록성공", "label", page)
    desk.picture("results")
    desk.keys("Escape")
    desk.gone("발송결과")
