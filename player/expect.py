"""What a scene expects as its outcome. A difference ends the play and shows both sides."""
import time

PATIENCE = 30  # seconds to wait for something expected


class Unexpected(Exception):
    pass


def expect(what, found, expected):
    """Ends the play when the two differ. Of lists and dictionaries only the differences are shown."""
    if found != expected:
        raise Unexpected(what + "".join(_differences(found, expected, "")))


def wait_for(what, look):
    """Waits until `look` finds something, and returns it."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = look()
        if found:
            return found
        time.sleep(0.1)
    raise Unexpected(f"{what} never came")


def _differences(found, expected, where):
    pairs = _pairs(found, expected)
    if pairs is None:
        yield f"\n  {where} expected: {expected!r}\n  {where} found:    {found!r}"
        return
    for name, (left, right) in pairs.items():
        if left != right:
            yield from _differences(left, right, f"{where}[{name!r}]")


def _pairs(found, expected):
    """The members of both by name, None for a missing one; None when either has no members."""
    if isinstance(found, dict) and isinstance(expected, dict):
        return {name: (found.get(name), expected.get(name)) for name in {**expected, **found}}
    if isinstance(found, list) and isinstance(expected, list):
        return _pairs(dict(enumerate(found)), dict(enumerate(expected)))
    return None
