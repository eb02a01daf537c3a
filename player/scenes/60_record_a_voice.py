"""A voice message: record at the microphone, listen to it, send."""


def play(desk):
    main = desk.window("Cardvale")
    desk.click(desk.find("음성메시지", "page tab", main))
    main = desk.window("[음성메시지]")
    desk.click(desk.find("마이크녹음", "page tab", main))
    desk.fill(desk.find("발송제목", "text", main), "음성 안내")
    desk.fill(desk.find("이름", "text", main), "박민수\n02-345-6789\n")
    desk.picture("recorder")

    desk.click(desk.find("녹음", "push button", main))
    desk.find("녹음하고 있습니다", within=main)
    desk.say("안녕하세요. 길동상사입니다.")
    desk.picture("recording")
    desk.click(desk.find("정지", "push button", main))
    desk.click(desk.find("재생", "push button", main))
    desk.picture("playing")
    desk.find("녹음한 음성이 있습니다", within=main)
    desk.picture("recorded")

    desk.click(desk.find("보내기", "push button", main))
    desk.window("메시지 발송확인")
    desk.keys("Return")
    desk.window("등록완료")
    desk.picture("voice-report")
    desk.keys("Return")
    desk.gone("등록완료")
