# SPDX-License-Identifier: GPL-3.0-or-later
"""What random hands do: gestures, each a few strokes and presses, which are written down."""

import os
import signal
import string
import time
from contextlib import contextmanager
from functools import partial

TEXTS = (
    "a", "0", "12", "1250,000.00", "$50,00.00", ".5", "1/2/2026", "13/45/99999", "Attic", "attic", "Art", "Clock 7", "Brass",
    "Kestrel", "Unknown", "None", "---", "100", "100%", "<", "\"", "'; --", "5185550101", "ann@home.example", "  ", "x" * 70,
)  # fmt: skip
TRAVEL = ("Tab", "Tab", "Tab", "shift+Tab", "Up", "Down", "Left", "Right", "Home", "End", "Prior", "Next", "ctrl+Left",
    "ctrl+Right", "ctrl+Home", "ctrl+End", "ctrl+Prior", "ctrl+Next", "shift+End", "shift+Home")  # fmt: skip
ANSWERS = ("Return", "Return", "Return", "KP_Enter", "space", "Escape", "alt+y", "alt+n", "y", "n")
ACCESS_KEYS = tuple("alt+" + letter for letter in string.ascii_lowercase)
CLIPBOARD = ("ctrl+a", "ctrl+a", "ctrl+c", "ctrl+v", "ctrl+x", "ctrl+Insert", "shift+Insert", "shift+Delete", "ctrl+z",
    "ctrl+y")  # fmt: skip
EDITING = ("BackSpace", "Delete", "BackSpace", "Delete", "Insert", "ctrl+BackSpace", "ctrl+Delete", "ctrl+k", "ctrl+u")
SPECIAL = ("F1", "F1", "F4", "F4", "alt+Down", "alt+Down", "alt+Up", "F2", "F3", "F5", "F10", "Menu", "shift+F10", "Escape",
    "Escape", "ctrl+p", "ctrl+s", "ctrl+g", "ctrl+0", "ctrl+1", "ctrl+plus", "ctrl+minus", "ctrl+f", "alt+Left",
    "alt+Right", "ctrl+w", "ctrl+q", "alt+F4", "alt+Tab")  # fmt: skip
IN_LIST = ("Down", "Down", "Up", "Home", "End", "Next", "Prior", "Left", "Right", "space", "Return", "Escape", "Tab", "a", "k",
    "Delete", "F4", "alt+Up", "alt+Down", "F1")  # fmt: skip
MODIFIERS = {"shift": "Shift_L", "ctrl": "Control_L", "alt": "Alt_L"}
NAMES = {" ": "space", "-": "minus", "+": "plus", "'": "apostrophe", '"': "quotedbl", "$": "dollar", ",": "comma",
    ".": "period", "/": "slash", "%": "percent", "<": "less", ">": "greater", ";": "semicolon", "@": "at"}  # fmt: skip


class Hands:
    """Does the single acts, counts and logs them. An act is a few words, "down Tab", "move 300 200", "sleep 0.1"; in the log
    the milliseconds before it that nothing was done stand before them."""

    def __init__(self, display, log):
        self.display = display
        self.log = log
        self.process = None
        self.events = 0
        self.pressed = set()  # keys
        self.done = time.monotonic()  # when the last act was done
        self.is_stopped = False

    def do(self, act):
        self.log.write(f"{(time.monotonic() - self.done) * 1000:.0f} {act}\n")
        word, *rest = act.split(" ", 1)
        getattr(self, "do_" + word)(*rest)
        self.done = time.monotonic()

    def let_go(self):
        """Of what a gesture that was broken off has left pressed."""
        for key in self.pressed:
            self.display.key(key, False)
        for button in (1, 2, 3):
            self.display.button(button, False)

    def note(self, text):
        self.log.write(f"# {text}\n")

    def do_down(self, key):
        self.events += key not in MODIFIERS.values()
        self.pressed.add(key)
        self.display.key(key, True)

    def do_up(self, key):
        self.pressed.discard(key)
        self.display.key(key, False)

    def do_press(self, button):
        self.events += 1
        self.display.button(int(button), True)

    def do_release(self, button):
        self.display.button(int(button), False)

    def do_move(self, place):
        self.display.move(*map(int, place.split()))

    def do_sleep(self, seconds):
        time.sleep(float(seconds))

    def do_stop(self):
        self.is_stopped = True
        self._signal(signal.SIGSTOP)

    def do_continue(self):
        self.is_stopped = False
        self._signal(signal.SIGCONT)

    def _signal(self, number):
        if self.process.poll() is None:
            os.kill(self.process.pid, number)

    # ---- acts put together

    def stroke(self, keys):
        with self.held(keys):
            pass

    @contextmanager
    def held(self, keys):
        *modifiers, key = keys.split("+")
        key = NAMES.get(key, key)
        downs = [MODIFIERS[each] for each in modifiers]
        if not modifiers and self.display.needs_shift(key):
            downs.append("Shift_L")
        downs.append(key)
        for each in downs:
            self.do(f"down {each}")
        yield
        for each in reversed(downs):
            self.do(f"up {each}")

    def type(self, text):
        for character in text:
            self.stroke(NAMES.get(character, character))

    def click(self, button=1, times=1, pause=0.0):
        for _ in range(times):
            self.do(f"press {button}")
            self.do(f"release {button}")
            if pause and times > 1:
                self.do(f"sleep {pause}")


class Gestures:
    """Chosen by a random source, for what is on the display."""

    def __init__(self, hands, eyes, random):
        self.hands = hands
        self.eyes = eyes
        self.random = random
        table = self.table()
        self.choices = [gesture for gesture, _ in table]
        self.weights = [weight for _, weight in table]

    def table(self):
        return (
            (self.click_control, 30), (partial(self.strokes, TRAVEL, (1, 1, 2, 3, 6)), 14), (partial(self.strokes, ANSWERS), 12),
            (partial(self.strokes, ACCESS_KEYS), 12), (self.type_text, 12), (self.open_list, 12), (self.answer_and_press, 12),
            (partial(self.strokes, CLIPBOARD, (1, 2, 3)), 8), (partial(self.strokes, SPECIAL), 6), (self.double_click, 6),
            (partial(self.strokes, EDITING, (1, 2, 5)), 5), (self.press_anywhere, 4), (self.turn_wheel, 4), (self.drag, 3),
            (self.hold_key, 1.2), (self.wait, 6), (self.name_list, 1.5),
        )  # fmt: skip

    def burst(self):
        """Some gestures; in every third burst the program is stopped meanwhile, so that all of them wait for it."""
        hands, random = self.hands, self.random
        piles_up = random.random() < 0.35
        if piles_up:
            hands.do("stop")
        for _ in range(random.choice((1, 2, 3, 4, 6, 9, 14))):
            random.choices(self.choices, self.weights)[0]()
        if piles_up:
            hands.do("continue")

    # ---- keys

    def strokes(self, keys, counts=(1,)):
        for _ in range(self.random.choice(counts)):
            self.hands.stroke(self.random.choice(keys))

    def type_text(self):
        self.hands.type(self.random.choice(TEXTS))

    def name_list(self):
        """Where a file is asked for, chooses the list to import; elsewhere it is a text and an answer."""
        self.hands.type("list.csv")
        self.hands.stroke("Return")

    def hold_key(self):
        keys = self.random.choice((*map(self.random.choice, (ANSWERS, ACCESS_KEYS, TRAVEL)), "x"))
        was_stopped = self.hands.is_stopped
        with self.hands.held(keys):
            self.hands.do(f"sleep {self.random.choice((0.75, 1.0, 1.4))}")
            if was_stopped and self.random.random() < 0.5:
                self.hands.do("continue")
                self.hands.do("sleep 0.2")

    def wait(self):
        self.hands.do(f"sleep {self.random.choice((0.005, 0.02, 0.05, 0.1, 0.3))}")

    # ---- mouse

    def place(self):
        """A place of a control that is known of the window in front, else anywhere in that."""
        window = self.eyes.front()
        if not window:
            return self.random.randrange(1024), self.random.randrange(768)
        controls = self.eyes.controls(window)
        if not controls or self.random.random() < 0.05:
            return window.x + self.random.randrange(window.width), window.y + self.random.randrange(window.height)
        role, name, left, top, width, height = self.random.choice(controls)
        self.hands.note(f"{role} {name!r}")
        part = self.random.choice((0.5, 0.5, 0.5, 0.1, 0.9, self.random.random()))
        x = width - height / 2 if role == "combo box" and self.random.random() < 0.5 else width * part
        return int(window.x + left + x), int(window.y + top + height / 2)

    def go_to(self, place):
        self.hands.do("move {} {}".format(*place))

    def click_control(self):
        self.go_to(self.place())
        self.hands.click(self.random.choices((1, 2, 3), (20, 1, 1))[0])

    def double_click(self):
        self.go_to(self.place())
        self.hands.click(times=self.random.choice((2, 2, 2, 3)), pause=self.random.choice((0, 0.03, 0.1)))

    def press_anywhere(self):
        self.go_to((self.random.randrange(1024), self.random.randrange(768)))
        self.hands.click()

    def turn_wheel(self):
        self.go_to(self.place())
        for _ in range(self.random.choice((1, 2, 5))):
            self.hands.click(self.random.choice((4, 5, 5)))

    def drag(self):
        self.go_to(self.place())
        self.hands.do("press 1")
        for _ in range(self.random.choice((1, 2, 4))):
            self.go_to(self.place())
        self.hands.do("release 1")

    # ---- what has gone wrong for hasty hands before

    def open_list(self):
        """Opens a list by key or mouse, goes about in it, and picks by one click or two; or types over what was picked, and
        opens it again."""
        hands, random = self.hands, self.random
        self.unfold()
        if random.random() < 0.4:
            hands.stroke(random.choice(("Down", "End", "Next")))
            hands.stroke("Return")
            self.type_text()
            hands.stroke(random.choice(("alt+Down", "F4")))
        for _ in range(random.choice((0, 0, 1, 3))):
            hands.stroke(random.choice(random.choice((IN_LIST, CLIPBOARD))))
        popups = self.eyes.popups()
        if popups and random.random() < 0.7:
            popup = popups[-1]
            self.go_to((popup.x + random.randrange(popup.width), popup.y + random.randrange(popup.height)))
            hands.click(times=random.choice((1, 1, 2, 2, 3)), pause=random.choice((0, 0.05, 0.15)))
        elif random.random() < 0.7:
            hands.stroke(random.choice(("Return", "Escape", "Tab", "space")))

    def unfold(self):
        hands, random = self.hands, self.random
        if random.random() < 0.6:
            self.go_to(self.place_of(self.eyes.front(), "combo box"))
            hands.click()
        else:
            hands.stroke(random.choice(("alt+Down", "F4")))
        if not hands.is_stopped:
            hands.do(f"sleep {random.choice((0.0, 0.05, 0.2))}")

    def place_of(self, window, *roles):
        """The middle of a control of such a role, or its arrow."""
        controls = [each for each in self.eyes.controls(window) if each[0] in roles] if window else []
        if not controls:
            return self.place()
        role, name, left, top, width, height = self.random.choice(controls)
        self.hands.note(f"{role} {name!r}")
        x = width - height // 2 if role == "combo box" else width // 2
        return window.x + left + x, window.y + top + height // 2

    def answer_and_press(self):
        """Answers, perhaps after a press that asks, and presses what was on the screen, before the answer can have come."""
        if self.random.random() < 0.5:
            self.go_to(self.place())
            self.hands.click()
        place = self.place_of(self.eyes.screen_behind(), "push button", "text")
        self.strokes(ANSWERS)
        if self.random.random() < 0.7:
            self.go_to(place)
            self.hands.click(times=self.random.choice((1, 1, 1, 2)))
        else:
            self.strokes(self.random.choice((ACCESS_KEYS, TRAVEL, ANSWERS, TEXTS[:1])))
