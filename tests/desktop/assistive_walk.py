#!/usr/bin/python3
"""Opens every window of the program through the accessibility bus and looks at every control in it.
Ends with 1 when a control has no name, the role of something else or no value, when two of one
window can't be told apart, or when a part has not seen every window of expected_windows.py. walk.sh
starts it.

    assistive_walk.py FOLDER PART...      the program's, with the samples in it; a project's name, or
                                          what the procedures below are called"""

import os
import subprocess
import sys
import time

from assistive import Missing, Program, children, find, role, states, text_of, wait_for, walk
from expected_windows import not_seen
from spoken_faults import spoken_faults


class Walk:
    def __init__(self, folder):
        self.folder = folder
        self.program = Program()
        self.windows, self.controls, self.faults = 0, 0, []
        self.seen = []  # by the part that is under way

    def look(self, window, state=""):
        time.sleep(0.15)  # what follows an action by a timer has been told then
        controls, faults = spoken_faults(window)
        self.windows += 1
        self.controls += controls
        looked_at = f"{window.name}{', ' if state else ''}{state}"
        self.seen.append(looked_at.replace(os.path.join(self.folder, ""), ""))
        print(f"{looked_at}: {controls} controls", flush=True)
        for fault in faults:
            self.fault(fault)

    def fault(self, words):
        print(f"    {words}", flush=True)
        self.faults.append(words)

    def walk_part(self, part):
        self.seen = []
        if part.endswith(".DUI"):
            self.project(part)
        else:
            getattr(self, part)()
        for window in not_seen(part, self.seen):
            self.fault(f"{part}: '{window}' was not seen")

    def look_at_tabs(self, window):
        bars = [n for n, _ in walk(window) if n is not None and role(n) == "page tab list"]
        if not bars:
            return self.look(window)
        for tab in children(bars[0]):
            if role(tab) != "page tab" or "enabled" not in states(tab):
                continue
            self.choose(tab)
            self.look(window, f"tab {tab.name}")

    @staticmethod
    def choose(tab):
        actions = tab.queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        actions.doAction(names.index("Press"))
        time.sleep(0.1)

    def answer(self, button):
        """Presses a button of the box that is in front, after a look at it."""
        box = self.box()
        self.look(box, "box: " + self.words(box)[:60])
        self.program.press(box, button)
        time.sleep(0.3)

    @staticmethod
    def words(box):
        return " ".join(n.name for n, _ in walk(box) if n is not None and role(n) == "label")

    def box(self):
        for _ in range(100):
            for window in self.program.windows():
                if role(window) == "alert":
                    return window
            time.sleep(0.1)
        raise Missing(f"a box; there are {[w.name for w in self.program.windows()]}")

    def leave(self, window, button="Cancel"):
        title = window.name
        self.program.press(window, button)
        self.program.gone(title)

    def board(self, button):
        self.program.press(self.program.main(), button)
        time.sleep(0.3)

    def ribbon(self, name):
        main = self.program.main()
        for kind, action in (("push button", "Press"), ("check box", "Toggle")):
            node = find(main, kind, name)
            if node is not None:
                return self.program.press(main, name, kind, action)
        raise Missing(f"the picture button {name}")

    def screen(self, title, open_it, leave="Cancel"):
        open_it()
        window = self.program.window(title)
        self.look_at_tabs(window)
        self.leave(window, leave)

    def open_project(self, name):
        self.program.menu("File", "Open")
        dialog = self.program.window("Open")
        field = self.program.control(dialog, "text", "File name:")
        self.program.type_into(field, os.path.join(self.folder, name))
        self.program.press(dialog, "Open")
        self.program.gone("Open")
        for _ in range(100):
            if name in self.program.main().name:
                break
            time.sleep(0.1)
        else:
            raise Missing(f"{name} in the title {self.program.main().name}")

    def edit(self, entry):
        return lambda: self.program.menu("Edit", entry)

    def tool(self, entry):
        return lambda: self.program.menu("Tools", entry)

    # The windows

    def at_start(self):
        self.look(self.program.main(), "main menu board at start")
        self.program.menu("File", "Open")
        dialog = self.program.window("Open")
        self.look(dialog)
        self.leave(dialog)
        self.program.menu("Tools", "Start Dialog")
        start = self.program.window("BARVON")
        for page in range(3):
            self.look(start, f"start dialog, page {page + 1}")
            if page == 0:
                self.program.press(start, "Do You Wish To Create a New Project?", "radio button",
                                   "Toggle")
            self.program.press(start, "Next >>") if page < 2 else None
            time.sleep(0.3)
        self.leave(start)
        self.screen("Tip of the Day", self.tool("Tip of the Day"), "OK")
        self.program.menu("Help", "About")
        about = self.program.window("About BARVON")
        self.look(about)
        self.program.press(about, "More...")
        more = self.program.window("More About BARVON")
        self.look(more)
        self.leave(more, "Close")
        self.leave(about, "OK")

    def project(self, name):
        print(f"--- {name}", flush=True)
        self.open_project(name)
        self.look(self.program.main(), "main menu board")
        self.board("Enter/Edit Data")
        self.look(self.program.main(), "data board")
        for entry, title in (("Site Description", None), ("Velocity Profile", None),
                             ("Material Description", None), ("Disposal Operation Data", None),
                             ("Coefficients (Default Values)", None)):
            self.any_screen(lambda entry=entry: self.program.menu("Edit", entry))
        self.any_screen(lambda: self.program.press(self.program.main(), "Enter/Edit Evaluation"))
        self.any_screen(lambda: self.program.press(self.program.main(), "Enter/Edit Options"))
        self.any_screen(lambda: self.ribbon("Water Density"))
        self.board("Return To Main Menu")

    def opened(self, open_it, answer="OK"):
        """The window that comes up, behind the boxes that are answered; none when there is no more
        than a box."""
        before = [w.name for w in self.program.windows()]
        open_it()
        refused = False
        for _ in range(100):
            windows = self.program.windows()
            # The help's title follows its pages.
            new = [w for w in windows if w.name not in before and role(w) != "alert" and
                   not w.name.endswith("BARVON Help")]
            if any(role(w) == "alert" for w in windows):
                self.answer(answer)
                refused = True
            elif new:
                return new[0]
            elif refused:
                return None
            time.sleep(0.1)
        raise Missing(f"a screen besides {before}")

    def any_screen(self, open_it, leave="Cancel"):
        window = self.opened(open_it)
        if window is not None:
            self.look_at_tabs(window)
            self.leave(window, leave)

    def velocities(self):
        """The four forms of the current, from the board's options."""
        self.board("Enter/Edit Data")
        for form in ("Single Depth Averaged Velocity", "2-Point Velocity Profile For Constant Depth",
                     "Variable Velocity Field", "Unsteady Velocity Profile"):
            self.program.press(self.program.main(), form, "radio button", "Toggle")
            time.sleep(0.2)
            self.any_screen(lambda: self.ribbon("Velocity Data"))
        self.board("Return To Main Menu")

    def depth_grid(self):
        window = self.opened(self.edit("Site Description"))
        for box in ("Specify Variable Depth Grid?",):
            node = find(window, "check box", box)
            if node is not None and "checked" not in states(node):
                self.program.press(window, box, "check box", "Toggle")
        grid = self.opened(lambda: self.program.press(window, "Define Grid"))
        self.look(grid, "over the site description")
        self.leave(grid)
        self.leave(window)

    def tools(self):
        self.any_screen(self.tool("Graphical Site Grid"))
        self.dilution()
        self.any_screen(self.tool("Database"), "Close")
        self.any_screen(self.tool("Check Database Files..."), "Close")
        self.text()
        self.long_text()
        self.help()

    def dilution(self):
        window = self.opened(lambda: self.ribbon("Dilution Calculator"))
        self.look_at_tabs(window)
        self.leave(window, "Close")

    def text(self):
        window = self.opened(self.tool("Text Viewer"))
        self.look(window)
        self.program.menu_of(window, "Edit", "Find")
        self.look(window, "with the find bar")
        self.program.menu_of(window, "File", "Close")
        window = self.opened(self.tool("Open Text File..."))
        field = self.program.control(window, "text", "File name:")
        self.program.type_into(field, os.path.join(self.folder, "walk.duo"))
        before = [w.name for w in self.program.windows()]
        self.program.press(window, "Open")
        self.program.gone(window.name)
        text = wait_for("the text's window", lambda: [
            w for w in self.program.windows() if w.name not in before])[0]
        self.look(text, "a file")
        self.told(text, "walk.duo", lambda told, kept: told == kept)
        self.program.menu_of(text, "File", "Close")

    def long_text(self):
        """One that is only read, whose words are those in view."""
        window = self.opened(self.tool("Open Text File..."))
        field = self.program.control(window, "text", "File name:")
        self.program.type_into(field, os.path.join(self.folder, "long.duo"))
        self.program.press(window, "Open")
        self.program.gone(window.name)
        text = self.program.window(os.path.join(self.folder, "long.duo"))
        self.look(text, "a long line")
        self.told(text, "long.duo", lambda told, kept: kept.startswith(told[:1000]) and
                  len(told) > 1000)
        self.program.menu_of(text, "File", "Close")

    def told(self, window, name, is_right):
        body = self.program.control(window, "text", "Text of the file")
        with open(os.path.join(self.folder, name), encoding="utf-8") as file:
            told = text_of(body)
            if not is_right(told, file.read()):
                self.fault(f"the text of {name} is told as '{told[:200]}'")

    def help(self):
        self.program.menu("Help", "Contents")
        window = self.program.window("BARVON Help")
        self.look_at_tabs(window)
        self.program.key("Escape")

    def wizard(self):
        """Through all pages, with the boxes and screens that come between them."""
        window = self.opened(lambda: self.board("Data Wizard"))
        for page in range(8):
            self.look(window, f"page {page + 1}")
            if page == 3:
                self.enter_typical_values(window)
            if page < 7:
                self.go_on(window)
        self.leave(window)

    def enter_typical_values(self, wizard):
        fields = [n for n, _ in walk(wizard) if n is not None and role(n) == "text" and
                  "editable" in states(n)]
        for field, text in zip(fields, ("10000", "2400", "1", "0.1", "50", "18", "30")):
            self.program.type_into(field, text)

    def go_on(self, wizard):
        step = wizard.name
        self.program.press(wizard, "Next >")
        for _ in range(200):
            if wizard.name != step:
                return
            for window in self.program.windows():
                if role(window) == "alert":
                    self.answer("Yes" if find(window, "push button", "Yes") else "OK")
                elif role(window) == "dialog" and "active" in states(window) and (
                        find(window, "push button", "OK")):
                    self.leave(window, "OK")
            time.sleep(0.1)
        raise Missing(f"the step behind {step}")

    def errors(self):
        """What a save of an empty project finds."""
        self.program.menu("File", "New")
        time.sleep(0.5)
        self.program.press(self.program.main(), "General Open Water Disposal Analysis",
                           "radio button", "Toggle")
        self.program.menu("File", "Save")
        dialog = self.program.window("Save As")
        self.look(dialog)
        field = self.program.control(dialog, "text", "File name:")
        self.program.type_into(field, os.path.join(self.folder, "empty.DUI"))
        self.program.press(dialog, "Save")
        self.program.gone("Save As")
        errors = self.opened(lambda: None, answer="Yes")
        self.look(errors)
        self.leave(errors, "Close")


    def graphics(self):
        """The graphics program by each entry of the main window's menu: on a project that was run,
        and on one that was not."""
        name = "Section_404_Zid.DUI"
        run = [os.path.join(self.folder, "barvon-run"), "run", "--solver", "companion", name]
        subprocess.run(run, cwd=self.folder, check=True)
        self.open_project(name)
        for entry, view in (("Execute Graphics", "Overview"),
                            ("Max Conc. vs Time", "Max Conc. vs Time"),
                            ("Concentration Contours", "Concentration Contours"),
                            ("Deposition Thickness", "Deposition Thickness")):
            self.program.menu("Graphics", entry)
            with Graphics(self, name) as graphs:
                graphs.expect_view(view)
                self.look(graphs.window, view)
                if view == "Overview":
                    graphs.place()
        self.open_project("Pipeline_Continuous.DUI")
        self.program.press(self.program.main(), "View Graphics")
        with Graphics(self, "Pipeline_Continuous.DUI") as graphs:
            self.look(graphs.window, "no results")


class Graphics:
    """A window of the graphics program, which goes when the block is left."""

    def __init__(self, tour, project):
        self.tour = tour
        self.title = f"BARVON Graphics - {project}"
        self.program = Program("kv_graph")
        self.window = self.program.window(self.title)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.program.menu_of(self.window, "File", "Close")
        wait_for("the end of the graphics program", lambda: not Program.is_there("kv_graph"))

    def expect_view(self, name):
        bar = find(self.window, "menu bar")
        menus = [m for item in children(bar) if item.name == "View" for m in children(item)]
        chosen = [i.name for m in menus for i in children(m) + [m] if "checked" in states(i)]
        if chosen != [name]:
            self.tour.fault(f"the view in front is {chosen}, not {name}")

    def place(self):
        self.program.menu_of(self.window, "File", "Place of the grid...")
        dialog = self.program.window("Place of the Grid")
        self.tour.look(dialog)
        self.program.press(dialog, "Cancel")
        self.program.gone("Place of the Grid")


def main():
    folder = sys.argv[1]
    program = subprocess.Popen([os.path.join(folder, "barvon")], cwd=folder)
    try:
        tour = Walk(folder)
        for part in sys.argv[2:]:
            tour.walk_part(part)
    finally:
        program.terminate()
        program.wait()
    print(f"{tour.windows} looks at windows, {tour.controls} controls, {len(tour.faults)} faults")
    return 1 if tour.faults else 0


if __name__ == "__main__":
    sys.exit(main())
