"""After a send: the results page in the browser form shows what was registered a moment ago."""


def play(desk):
    main = desk.window("[문자메시지]")
    subject = desk.find("발송제목", "text", main).queryText().getText(0, -1)
    desk.click(desk.find("발송결과", "push button", main))
    page = desk.window_called("발송결과")
    desk.find(subject, "link")
    desk.find("등록성공", "label", page)
    desk.picture("results")
    # The first Escape is for the open list, the second for the form.
    desk.click(desk.find("상태", "combo box", page))
    desk.picture("results-list")
    desk.keys("Escape")
    desk.picture("results-again")
    desk.window_called("발송결과")
    desk.keys("Escape")
    desk.gone("발송결과")
