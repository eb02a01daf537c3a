"""A fax of two documents. The service converts them one by one, so the job takes long. Then the same by schedule,
while one of the documents disappears."""
from carrier import FAX, NO_ATTACHMENT, path_of, registration
from expect import expect

SUBJECT = "견적서와 약도"


def play(desk):
    quotation, map_of_the_way = desk.home / "견적서.hwp", desk.home / "사무실 약도.jpg"
    for file in (quotation, map_of_the_way):
        file.write_bytes(b"." * 150_000)
    documents = [path_of(map_of_the_way), path_of(quotation)]
    main = desk.choose_kind("팩스메시지", SUBJECT)
    desk.click(desk.find("보낼문서 찾아보기", "push button", main))
    desk.choose_file("팩스문서 열기", map_of_the_way.name, "file-dialog")
    desk.click(desk.find("보낼문서 찾아보기", "push button", main))
    desk.choose_file("팩스문서 열기", quotation.name)
    desk.add_recipient(main, "최영호", "02-678-9012")
    desk.picture("fax")
    desk.send(main)
    desk.carrier.expect(registration(FAX, SUBJECT, [("최영호", "026789012")], documents))

    scheduled = desk.schedule(main)
    desk.add_recipient(main, "최영희", "02-678-9013")
    desk.ask_to_send(main)
    quotation.unlink()
    desk.keys("Return")
    expect("the report", desk.read_report(), [0, 1, 0])
    refused = {"schedule_time": scheduled, "result": NO_ATTACHMENT}
    desk.carrier.expect(registration(FAX, SUBJECT, [("최영희", "026789013")], documents, **refused))
    desk.send_at_once(main)

    desk.click(desk.find("보내기", "push button", main))
    desk.find("z:" + str(quotation).replace("/", "\\"))
    desk.keys("Return")
    desk.click(desk.find("최영희", "table cell", main))
    desk.keys("Delete")
    desk.find("선택한 목록을 삭제하시겠습니까?")
    desk.keys("alt+y")
    desk.find("전체>", "label", main)
