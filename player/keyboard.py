"""The keyboard of the virtual screen, whose spare keys learn the characters that are to be typed."""
import ctypes
import subprocess

# Those behind the keys that keyboards have.
FIRST_SPARE_KEY, SPARE_KEYS = 208, 48
# The X server's number of a character's key begins here.
UNICODE = 0x1000000
DELAY = "15"  # milliseconds between characters


class Keyboard:
    def __init__(self):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._x11.XOpenDisplay.restype = ctypes.c_void_p
        self._display = ctypes.c_void_p(self._x11.XOpenDisplay(None))
        self._learnt = []

    def press(self, *keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", "--delay", "60", *keys], check=True)

    def type(self, text):
        """Types a line. Programs learn of new keys late, so they come all at once, and before the first is pressed.

        A line with more characters than there are spare keys may go wrong on a busy machine.
        """
        self._learn({character for character in text if not character.isascii()})
        subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", DELAY, text], check=True)

    def _learn(self, characters):
        if characters <= set(self._learnt):
            return
        others = [character for character in self._learnt if character not in characters]
        self._learnt = (sorted(characters) + others)[:SPARE_KEYS]
        keys = (ctypes.c_ulong * SPARE_KEYS)(*(UNICODE + ord(character) for character in self._learnt))
        self._x11.XChangeKeyboardMapping(self._display, FIRST_SPARE_KEY, 1, keys, SPARE_KEYS)
        self._x11.XSync(self._display, False)
