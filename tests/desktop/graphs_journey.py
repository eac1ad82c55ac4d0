#!/usr/bin/python3
"""A sample is opened, run and looked at by keys alone, in the real windows: each view of the
graphics program, what it saves, and a run that comes under its window. On the way Tab goes round
every view. walk.sh starts it.

    graphs_journey.py FOLDER      of the programs, with the sample projects in it"""

import os
import subprocess
import sys
import time

from assistive import Program, find, wait_for, walk
from key_journey import Keyboard, keys, type_text

PROJECT = "Section_404_Zid.DUI"


class Graphs_Keyboard(Keyboard):
    def __init__(self, folder):
        self.folder = folder
        self.program = Program("kv_graph")
        self.faults = []

    def foot(self, window):
        bar = find(window, "status bar")
        return " ".join(n.name for n, _ in walk(bar) if n is not None)

    def save(self, key, title, name):
        keys(key)
        self.window(title)
        keys("ctrl+a")
        path = os.path.join(self.folder, name)
        type_text(path)
        keys("Return")
        wait_for(f"the file {name}", lambda: os.path.exists(path) and os.path.getsize(path) > 0)
        self.program.gone(title)


def run_in_the_main_window(k):
    k.window("BARVON - ")
    keys("ctrl+o")
    k.window("Open")
    type_text(os.path.join(k.folder, PROJECT))
    keys("Return")
    wait_for("the project", lambda: PROJECT in k.program.main().name)
    time.sleep(0.5)
    keys("F5")
    wait_for("the outputs", lambda: os.path.exists(os.path.join(k.folder, "Section_404_Zid.duc")))
    time.sleep(0.5)
    k.answer_boxes()
    keys("alt+g")
    time.sleep(0.4)
    keys("Return")


def look_at_each_view(k, window):
    for view, name in enumerate(("Overview", "Max Conc. vs Time", "Concentration Contours",
                                 "Deposition Thickness")):
        keys(f"ctrl+{view + 1}")
        wait_for(name, lambda name=name: k.focused(window).name is not None)
        k.round_of(window)
        keys(f"ctrl+{view + 1}")  # back to the tabs
        time.sleep(0.2)
        k.save("ctrl+s", "Save Picture As", f"view{view}.png")
        k.save("ctrl+shift+s", "Save Numbers As", f"view{view}.csv")


def see_a_new_run(k, window):
    run = [os.path.join(k.folder, "barvon-run"), "run", "--solver", "companion", PROJECT]
    subprocess.run(run, cwd=k.folder, check=True)
    wait_for("a word about the new outputs", lambda: "New outputs of " + PROJECT in k.foot(window))


def main():
    folder = sys.argv[1]
    program = subprocess.Popen([os.path.join(folder, "barvon")], cwd=folder)
    try:
        run_in_the_main_window(Keyboard(folder))
        k = Graphs_Keyboard(folder)
        window = k.window(f"BARVON Graphics - {PROJECT}")
        look_at_each_view(k, window)
        see_a_new_run(k, window)
        keys("ctrl+w")
        wait_for("the end of the graphics program", lambda: not Program.is_there("kv_graph"))
        assert program.poll() is None, "the program has ended"
    finally:
        program.terminate()
        program.wait()
    return 1 if k.faults else 0


if __name__ == "__main__":
    sys.exit(main())
