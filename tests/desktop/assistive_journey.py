#!/usr/bin/python3
"""A project is opened, changed, checked, mended, saved and run through the accessibility bus alone;
what the program says of it there is held against its files. walk.sh starts it.

    assistive_journey.py FOLDER            of the program, with the sample projects in it
    assistive_journey.py FOLDER bad_run    the judge of the run itself: its solver is made to fail"""

import json
import os
import subprocess
import sys
import time

from assistive import children, end_of_run, find, hold_to_a_good_run, role, text_of, wait_for
from assistive_walk import Walk

PROJECT = "Hopper_Six_Openings.DUI"
ROUGHNESS = ("Roughness Height (ft) at Bottom in X-Direction (Typically from 0.0005 to  0.05 ft)")


class Journey:
    def __init__(self, folder):
        self.folder = folder
        self.walk = Walk(folder)
        self.program = self.walk.program

    def box(self, words, button):
        """Answers the box that says these words."""
        box = self.walk.box()
        said = self.walk.words(box)
        assert words in said, f"a box says '{said}' and not '{words}'"
        self.program.press(box, button)
        wait_for(f"the end of the box '{words}'",
                 lambda: not any(role(w) == "alert" and self.walk.words(w) == said
                                 for w in self.program.windows()))

    def site(self):
        return self.walk.opened(self.walk.edit("Site Description"))

    def enter_roughness(self, text, remark=None):
        site = self.site()
        self.program.type_into(self.program.control(site, "text", ROUGHNESS), text)
        if remark is not None:
            self.box(remark, "OK")
        self.walk.leave(site, "OK")

    def record(self):
        shown = subprocess.run([os.path.join(self.folder, "barvon-run"), "show", "--json", PROJECT],
                               cwd=self.folder, capture_output=True, check=True).stdout
        return json.loads(shown)["project"] if b'"project"' in shown else json.loads(shown)

    def go(self):
        self.walk.open_project(PROJECT)
        title = self.program.control(self.program.main(), "text", "Project Title")
        assert text_of(title).startswith("TERN SHOAL CHANNEL"), text_of(title)
        state = find(self.program.main(), "label", "Site Description: Data Supplied")
        assert state is not None, "the board does not say that the site is supplied"
        self.see_values()

        self.enter_roughness("99", "Roughness Height May Be Too High")
        self.program.menu("File", "Save")
        self.box("Errors have been detected in the data.", "Yes")
        errors = self.program.window("Error List")
        found = [line.name for line in children(self.program.control(
            errors, "list", "Notes, warnings and errors"))]
        assert any("Roughness Height Outside Bounds" in line for line in found), found
        self.walk.leave(errors, "Close")

        self.enter_roughness("0.04")
        self.program.menu("File", "Save")
        time.sleep(1)
        assert not any(role(w) == "alert" for w in self.program.windows()), "a box at the save"
        saved = json.dumps(self.record())
        assert '"RHDA0": 0.04' in saved, "the roughness is not in the file"

        self.run()

    def see_values(self):
        """What the site's screen says is what the sample was made of."""
        site = self.site()
        seen = {"Z-Direction (Left to Right) (8 to 96)": "40",
                "X-Direction (Top to Bottom) (8 to 96)": "45", "Z-Dir (Left to Right)": "125.00",
                "Constant Water Depth (ft) at Disposal Site": "60.0", ROUGHNESS: "0.00500"}
        for name, text in seen.items():
            told = text_of(self.program.control(site, "text", name))
            assert told == text, f"'{name}' is told as '{told}', not '{text}'"
        table = self.program.control(site, "table", "Water density profile").queryTable()
        cells = [[table.getAccessibleAt(row, column).name for column in range(table.nColumns)]
                 for row in range(table.nRows)]
        headings = [table.getColumnHeader(column).name for column in range(table.nColumns)]
        assert headings == ["Depth (ft)", "Density (g/cc)"], headings
        assert cells == [["0.0", "1.0212"], ["30.0", "1.0220"], ["60.0", "1.0234"]], cells
        self.walk.leave(site)

    def run(self):
        self.program.press(self.program.main(), "Run Simulation")
        said = end_of_run(self.program)
        print("status:", said, flush=True)
        hold_to_a_good_run(said, os.path.join(self.folder, PROJECT[:-4]))

    def bad_run(self):
        """A run by a solver that fails and leaves a piece of one output passes for no good one."""
        solver = os.path.join(self.folder, "barvon-solver")
        os.remove(solver)
        with open(solver, "w", encoding="ascii") as script:
            script.write("#!/bin/sh\necho broken >tmpfile.duo\nexit 3\n")
        os.chmod(solver, 0o755)
        self.walk.open_project(PROJECT)
        try:
            self.run()
        except AssertionError as found:
            assert " ended with code 3 " in str(found), found
            return
        raise AssertionError("a run that failed passes for a good one")


def main():
    folder, bad_run = sys.argv[1], sys.argv[2:] == ["bad_run"]
    program = subprocess.Popen([os.path.join(folder, "barvon")], cwd=folder)
    try:
        journey = Journey(folder)
        if bad_run:
            journey.bad_run()
        else:
            journey.go()
        assert program.poll() is None, "the program has ended"
    finally:
        program.terminate()
        program.wait()
    print("a failed run is told from a good one" if bad_run else
          "opened, changed, checked, mended, saved and run through the bus")


if __name__ == "__main__":
    main()
