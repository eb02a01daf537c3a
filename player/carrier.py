"""The carrier's stand-in and its web site: reads the ledger and gives orders."""
import contextlib
import datetime
import sqlite3

from expect import expect

# Stands for the time of the click that sent the message.
AT_ONCE = "at once"
# The kinds of message: the operation, its codes, and the values of the fields that a draft leaves empty.
TEXT = {"operation": "fn_x_submit", "data_type": 1, "data_sub_type": None, "reply_flag": None, "tts_content": None}
_LONGER = {"operation": "fn_x_submit_2", "data_sub_type": 2, "reply_flag": 0, "tts_content": ""}
TEXT_AND_SPEECH = {**_LONGER, "data_type": 7, "data_sub_type": 1}
TEXT_AND_SOUND = {**_LONGER, "data_type": 7}
SPEECH = {**_LONGER, "data_type": 2, "data_sub_type": 1}
SOUND = {**_LONGER, "data_type": 3}
FAX = {**_LONGER, "data_type": 5}

REGISTERED = 1
NO_CONNECTION = 5
NO_ATTACHMENT = 16


def registration(kind, subject, recipients, attachments=(), **columns):
    """A row of the ledger: registered, to be sent at once, unless `columns` say otherwise. Recipients are (name, digits)."""
    return {
        "user_id": "demo",
        "submit_sequence": 1,
        "subject": subject,
        "schedule_time": AT_ONCE,
        "callback": "",
        "dest_addr_count": len(recipients),
        "dest_addr": "".join(f"{name}:{digits};" for name, digits in recipients),
        "sms_content": "",
        "attach_file_count": len(attachments),
        "attach_file": "".join(f"{path};" for path in attachments),
        "result": REGISTERED,
        **kind,
        **columns,
    }


def path_of(file):
    """A file's path as the program gives it to the carrier."""
    return "z:" + str(file).replace("/", "\\").lower()


class Carrier:
    def __init__(self, application):
        self._ledger = application / "carrier-ledger.db"
        self._orders = application / "carrier.ini"
        self._update_facts = application / "i_version.ini"
        self._seen = 0

    def expect(self, *registrations):
        """Expects these registrations, and no others, since the last look."""
        rows = self._rows("SELECT * FROM registration WHERE id > ? ORDER BY id", self._seen)
        self._seen = rows[-1]["id"] if rows else self._seen
        expect("the carrier's ledger", [_as_expected(row) for row in rows], list(registrations))

    def calls(self, operation):
        """How often the program has called the operation."""
        # Each process counts its own calls, and the program may have been restarted.
        last = self._rows("SELECT nth, process FROM call WHERE operation = ? ORDER BY id DESC LIMIT 1", operation)
        return last[0]["nth"] if last else 0

    @contextlib.contextmanager
    def ordered(self, section, line):
        """Gives the stand-in this order, beside the others, for the length of the block."""
        before = self._orders.read_text()
        self._orders.write_text(f"{before}\n[{section}]\n{line}\n")
        try:
            yield
        finally:
            self._orders.write_text(before)

    def offer_update(self):
        """Lets the site's list name a newer program."""
        facts = self._update_facts.read_text()
        self._update_facts.write_text(facts.replace("/update/update.ini", "/update/due/update.ini"))

    def _rows(self, query, *values):
        if not self._ledger.exists():
            return []
        with contextlib.closing(sqlite3.connect(f"file:{self._ledger}?mode=ro", uri=True)) as ledger:
            ledger.row_factory = sqlite3.Row
            return ledger.execute(query, values).fetchall()


def _as_expected(row):
    """The row without what is the ledger's own bookkeeping."""
    columns = {name: row[name] for name in row.keys() if name not in ("id", "call", "time", "recipient_count")}
    called = datetime.datetime.fromisoformat(row["time"])
    scheduled = datetime.datetime.strptime(row["schedule_time"], "%Y%m%d%H%M%S")
    # The minute in which the job began.
    if datetime.timedelta() <= called - scheduled < datetime.timedelta(minutes=2):
        columns["schedule_time"] = AT_ONCE
    return columns
