"""A fax of two documents. The service converts them one by one, so the job takes its time."""
from carrier import FAX, path_of, registration

SUBJECT = "견적서와 약도"


def play(desk):
    for name in ("견적서.hwp", "사무실 약도.jpg"):
        (desk.home / name).write_bytes(b"." * 150_000)
    main = desk.choose_kind("팩스메시지", SUBJECT)
    desk.click(desk.find("보낼문서 찾아보기", "push button", main))
    desk.choose_file("팩스문서 열기", "사무실 약도.jpg", "file-dialog")
    desk.click(desk.find("보낼문서 찾아보기", "push button", main))
    desk.choose_file("팩스문서 열기", "견적서.hwp")
    desk.add_recipient(main, "최영호", "02-678-9012")
    desk.picture("fax")
    desk.send(main)
    documents = [path_of(desk.home / name) for name in ("사무실 약도.jpg", "견적서.hwp")]
    desk.carrier.expect(registration(FAX, SUBJECT, [("최영호", "026789012")], documents))
