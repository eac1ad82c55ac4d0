#!/usr/bin/python3
"""A project is made and run in the real window by keys alone, from an empty project to the end of
its run. The keys come from xdotool; the accessibility bus is only read, as whoever works by keys
hears where they are. On the way Tab goes round every window: a control that it does not reach is a
fault. walk.sh starts it.

    key_journey.py FOLDER      of the program"""

import os
import subprocess
import sys
import time

from assistive import (Missing, Program, end_of_run, find, hold_to_a_good_run, labels, role, states,
                       text_of, wait_for, walk)

LONGEST_ROUND = 80
PASSED_BY = {"label", "menu item", "page tab", "table cell", "list item"}


def keys(*names):
    subprocess.run(["xdotool", "key", "--clearmodifiers", "--delay", "20", *names], check=True)


def type_text(text):
    subprocess.run(["xdotool", "type", "--delay", "15", text], check=True)


class Keyboard:
    def __init__(self, folder):
        self.folder = folder
        self.program = Program()
        self.faults = []

    def front(self):
        """The window that has the keyboard."""
        return wait_for("a window in front", lambda: [
            w for w in self.program.windows() if "active" in states(w)])[-1]

    def window(self, title):
        """The window of that title, once it has the keyboard."""
        window = self.program.window(title)
        wait_for(f"the keyboard in '{title}'", lambda: "active" in states(window))
        time.sleep(0.2)
        return window

    @staticmethod
    def focus(window):
        for node, _ in walk(window):
            if node is not None and "focused" in states(node) and role(node) not in (
                    "menu item", "page tab"):
                return node
        return None

    def focused(self, window):
        return wait_for(f"the keyboard somewhere in '{window.name}'", lambda: self.focus(window))

    def tab(self, window):
        """Goes on; out of a table, whose cells Tab goes through, with Ctrl."""
        table = role(self.focused(window)) in ("table", "table cell")
        keys("ctrl+Tab" if table else "Tab")
        time.sleep(0.03)

    @staticmethod
    def known(node):
        return (role(node), node.name, tuple(labels(node)))

    def go_to(self, window, name, kind=None):
        """Tab until the control of that name has the keyboard."""
        passed = []
        for _ in range(LONGEST_ROUND):
            at = self.focused(window)
            if at.name == name and (kind is None or role(at) == kind):
                return at
            passed.append(at.name)
            self.tab(window)
        raise Missing(f"'{name}' in '{window.name}' by Tab, which goes {passed}")

    def enter(self, window, name, text):
        """Text into the field of that name, in the place of what it holds."""
        field = self.go_to(window, name, "text")
        keys("ctrl+a")
        type_text(text)
        wait_for(f"'{text}' in '{name}'", lambda: text_of(field) == text)

    def round_of(self, window):
        """Tab goes round once; what takes the keyboard and was not come by is a fault."""
        reached, first = set(), None
        for _ in range(LONGEST_ROUND):
            at = self.known(self.focused(window))
            if at == first:
                break
            first = first or at
            reached.add(at)
            self.tab(window)
        missed = []
        for node, parents in walk(window):
            if node is None or not {"focusable", "enabled"} <= states(node):
                continue
            kind = role(node)
            # Of a group of options one is a stop; of a page of text, an inner part is none.
            if kind in PASSED_BY or self.known(node) in reached or any(
                    role(p) in ("combo box", "text") for p in parents):
                continue
            if kind == "radio button" and any(
                    r[0] == "radio button" and r[2] == self.known(node)[2] for r in reached):
                continue
            if kind == "text" and "editable" not in states(node):
                continue  # a value that is only shown is told with its label
            missed.append(f"{kind} '{node.name}'")
        print(f"{window.name}: {len(reached)} stops of the keyboard", flush=True)
        for control in missed:
            print(f"    {control} is not reached by Tab", flush=True)
            self.faults.append(control)

    def press(self, window, name):
        self.go_to(window, name, "push button")
        keys("space")

    @staticmethod
    def words(box):
        return " ".join(n.name for n, _ in walk(box) if n is not None and role(n) == "label")

    def answer_boxes(self, key="Return"):
        """Boxes that say something on the way."""
        for _ in range(8):
            for box in [w for w in self.program.windows() if role(w) == "alert"]:
                print("    box:", self.words(box), flush=True)
                keys(key)
                time.sleep(0.3)
            time.sleep(0.05)

    def leave(self, title, window):
        self.press(window, "OK")
        self.answer_boxes()
        self.program.gone(title)


def edit(k, letter, title):
    """A screen by its letter in the Edit menu."""
    keys("alt+e")
    time.sleep(0.4)
    keys(letter)
    return k.window(title)


def cells(*texts):
    """From the active cell of a table on, along its rows."""
    for text in texts:
        type_text(text)
        keys("Tab")


def choose(k, main):
    k.enter(main, "Project Title", "BY KEYS ALONE")
    k.round_of(main)
    k.go_to(main, "General Open Water Disposal Analysis", "radio button")
    keys("space", "Tab", "space")
    hopper = find(main, "radio button", "Disposal from a Multiple Bin Hopper Dredge")
    assert "checked" in states(hopper), "no method is chosen"


def site(k):
    window = edit(k, "s", "Disposal Site Data")
    k.round_of(window)
    for name in ("Z-Dir (Left to Right)", "X-Dir (Top to Bottom)"):
        k.enter(window, name, "100")
    k.enter(window, "Constant Water Depth (ft) at Disposal Site", "60")
    k.go_to(window, "Water density profile", "table")
    keys("ctrl+Home")
    cells("0", "1.0212", "60", "1.0234")
    k.leave("Disposal Site Data", window)


def velocity(k):
    window = edit(k, "v", "Velocity Profile Data")
    k.round_of(window)
    k.enter(window, "Depth at location (ft)", "60")
    k.enter(window, "X-Direction Velocity (fps)", "0.5")
    k.leave("Velocity Profile Data", window)


def material(k):
    title = "Material Description Data - Hopper Dredge"
    window = edit(k, "m", title)
    k.round_of(window)
    k.enter(window, "Total Volume of Dredged Material in the Hopper Dredge (cu yd).", "2000")
    for _ in range(LONGEST_ROUND):
        if role(k.focused(window)) == "page tab list":
            break
        k.tab(window)
    keys("Right")
    time.sleep(0.3)
    k.round_of(window)
    k.enter(window, "Number of Distinct Solids Fractions in the Material (Maximum of 4 Allowed).",
            "1")
    table = k.go_to(window, "Solids fractions", "table").queryTable()
    cells("Fine_Sand", "2.7", "0.1", "0.02", "0.7", "0.015", "N")
    type_text("Y")
    keys("Return")
    wait_for("the row of sand", lambda: ["Fine_Sand", "2.700", "0.100"] in [
        [table.getAccessibleAt(row, column).name for column in range(3)]
        for row in range(table.nRows)])
    k.leave(title, window)


def operation(k):
    title = "Disposal Operation Data - Hopper Dredge"
    window = edit(k, "d", title)
    k.round_of(window)
    for name, text in (("Location of Disposal Point from Top of Grid (ft)", "1000"),
                       ("Location of Disposal Point from Left Edge of Grid (ft)", "1000"),
                       ("Length of Disposal Vessel Bin (ft)", "30"),
                       ("Width of Disposal Vessel Bin (ft)", "20"),
                       ("Pre-Disposal Draft (ft)", "20"), ("Post-Disposal Draft (ft)", "10"),
                       ("Time Required to Empty All the Hopper Bins (sec)", "60"),
                       ("Number of Bins That Open Simultaneously", "1")):
        k.enter(window, name, text)
    k.leave(title, window)


def times(k):
    keys("alt+d")
    time.sleep(0.3)
    keys("alt+p")
    title = "Time Step and Print Options"
    window = k.window(title)
    k.round_of(window)
    k.enter(window, "Duration of the Simulation (sec)", "3600")
    k.enter(window, "Long-Term Time Step for Diffusion (sec)", "600")
    k.leave(title, window)


def save(k, main):
    keys("ctrl+s")
    time.sleep(0.6)
    dialog = k.front()
    assert dialog.name == "Save As", dialog.name
    type_text(os.path.join(k.folder, "keys.DUI"))
    keys("Return")
    time.sleep(1)
    boxes = [w for w in k.program.windows() if role(w) == "alert"]
    assert not boxes, k.words(boxes[0])
    wait_for("the project's file", lambda: os.path.exists(os.path.join(k.folder, "keys.DUI")))


def run(k):
    keys("F5")
    said = end_of_run(k.program)
    print(said)
    hold_to_a_good_run(said, os.path.join(k.folder, "keys"))


def journey(k):
    main = k.window("BARVON - ")
    choose(k, main)
    site(k)
    velocity(k)
    material(k)
    operation(k)
    times(k)
    save(k, k.window("BARVON - "))
    run(k)


def main():
    folder = sys.argv[1]
    program = subprocess.Popen([os.path.join(folder, "barvon")], cwd=folder)
    try:
        k = Keyboard(folder)
        journey(k)
        assert program.poll() is None, "the program has ended"
    finally:
        program.terminate()
        program.wait()
    return 1 if k.faults else 0


if __name__ == "__main__":
    sys.exit(main())
