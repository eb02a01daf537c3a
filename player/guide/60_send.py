"""A job of three parts, of which the carrier refuses the last; then the service's pages on what was sent and what it costs."""
from card_manager import hand_over
from carrier import NO_CONNECTION

FAMILY_NAMES = "김이박최정강조윤장임"
GIVEN_NAMES = (
    "민준 서연 도윤 지우 하은 서준 예린 현우 수아 은호 유진 시우 다인 태윤 가온 나래 "
    "보람 세아 연우 재희 채원 하람 소율 건우"
).split()
TITLES = ["대리", "과장", "부장", "사원", "팀장"]
CUSTOMERS = [
    (family + given, f"010-5550-{1000 + 37 * (len(GIVEN_NAMES) * row + column)}", TITLES[column % 5])
    for row, family in enumerate(FAMILY_NAMES)
    for column, given in enumerate(GIVEN_NAMES)
]


def play(desk):
    desk.start_anew(desk.window("["))
    main = desk.choose_kind("문자메시지", "휴무 안내")
    hand_over(desk.app, 1, CUSTOMERS)
    desk.find("전체>240>대상>240", "label", main)
    desk.fill(desk.find("문자 내용", "text", main), "[길동상사] 다음 주 금요일은 창립기념일로 쉽니다. 양해 부탁드립니다.")
    last = desk.carrier.calls("fn_x_submit") + 3
    refusal = desk.carrier.ordered("failures", f"fn_x_submit@{last}={NO_CONNECTION}")
    slowness = desk.carrier.ordered("delays", "fn_x_submit=3000")
    with refusal, slowness:
        desk.start_sending(main)
        # While the carrier thinks about the second part.
        job = desk.window("% · 문자메시지")
        desk.find("240명 중 100명 등록", within=job)
        desk.picture_of(job, "sending", moving=True)
        report = desk.window("등록완료")
        desk.picture_of(report, "report")
        desk.read_report()
    # From those above them F8 goes back to the first who failed.
    desk.keys(*["Up"] * 5, "F8")
    desk.picture_of(main, "recipients_failed")

    for page, name in [("발송결과", "results"), ("요금조회", "charges")]:
        desk.click(desk.find(page, "push button", main))
        form = desk.window_called(page)
        desk.find(page, "heading", form)
        desk.picture_of(form, name)
        desk.keys("Escape")
        desk.gone(page)
