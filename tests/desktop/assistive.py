"""A client of the accessibility bus, as a screen reader is one: it knows the program by nothing but
what the program says of itself there, and works it by the actions, the texts and the keys that
every such client has."""

import os
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402
import pyatspi  # noqa: E402

PATIENCE = 20.0  # seconds that a window may take to come up

MAIN = "BARVON - "  # what the main window's title starts with


class Missing(Exception):
    """What was waited for did not come."""


def wait_for(what, look, patience=PATIENCE):
    """The first result of `look` that is not empty."""
    end = time.monotonic() + patience
    while time.monotonic() < end:
        try:
            found = look()
        except GLib.Error:  # it went away while it was looked at
            found = None
        if found:
            return found
        time.sleep(0.05)
    raise Missing(what)


def states(node):
    return {pyatspi.stateToString(state) for state in node.getState().getStates()}


def is_seen(node):
    return "showing" in states(node)


def role(node):
    return node.getRoleName()


def children(node):
    """What stands in the node. A window that is being laid out may have parts without a face for a
    moment."""
    for _ in range(10):
        found = [node.getChildAtIndex(i) for i in range(node.childCount)]
        if None not in found:
            break
        time.sleep(0.05)
    return found


def walk(node, only_seen=True):
    """The node and what is in it, each with its parents. Cells are not walked: a table is asked by
    its own interface."""
    queue = [(node, [])]
    while queue:
        at, parents = queue.pop(0)
        if at is None:
            yield None, parents
            continue
        yield at, parents
        if role(at) in ("table", "tree table", "tree", "list", "menu item", "list box"):
            continue
        for child in children(at):
            if child is None or not only_seen or is_seen(child):
                queue.append((child, parents + [at]))


def related(node, kind):
    names = []
    for relation in node.getRelationSet():
        if relation.getRelationType() == kind:
            names += [relation.getTarget(i).name for i in range(relation.getNTargets())]
    return names


def labels(node):
    return related(node, pyatspi.RELATION_LABELLED_BY)


def text_of(node):
    try:
        return node.queryText().getText(0, -1)
    except NotImplementedError:
        return None


def find(root, wanted_role, name=None, only_seen=True):
    for node, _ in walk(root, only_seen):
        if node is None or role(node) != wanted_role:
            continue
        if name is None or node.name == name:
            return node
    return None


def act(node, action):
    """Does an action of the node. One that brings up a window which blocks answers only when that
    window has gone, so no answer is waited for."""
    actions = node.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    if action not in names:
        raise Missing(f"action {action} of {role(node)} '{node.name}', which has {names}")
    try:
        actions.doAction(names.index(action))
    except GLib.Error as error:
        if not no_answer(error):
            raise


def no_answer(error):
    """Whether the program was asked and has not answered yet."""
    return "imeout" in error.message or "did not receive a reply" in error.message.lower()


class Program:
    """The running program as the bus shows it."""

    def __init__(self, name="barvon"):
        Atspi.set_timeout(700, 700)
        self.root = wait_for(f"the program {name} on the bus", lambda: self._on_bus(name))
        self.root.set_cache_mask(Atspi.Cache.NONE)

    @staticmethod
    def _on_bus(name):
        for program in children(pyatspi.Registry.getDesktop(0)):
            if program is not None and program.name == name and program.childCount > 0:
                return program
        return None

    @staticmethod
    def is_there(name):
        return Program._on_bus(name) is not None

    def windows(self):
        return [w for w in children(self.root) if w is not None and is_seen(w)]

    def window(self, title, patience=PATIENCE):
        """The window whose title is that or, for a title that ends in a blank, starts with it."""

        def look():
            for window in self.windows():
                if window.name == title or title[-1] == " " and window.name.startswith(title):
                    if title != MAIN or role(window) == "frame":
                        return window
            return None

        try:
            return wait_for("", look, patience)
        except Missing:
            titles = [w.name for w in self.windows()]
            raise Missing(f"a window '{title}'; there are {titles}") from None

    def main(self):
        return self.window(MAIN)

    def gone(self, title):
        wait_for(f"the end of window '{title}'",
                 lambda: all(w.name != title for w in self.windows()))

    def control(self, window, wanted_role, name):
        return wait_for(f"{wanted_role} '{name}' in '{window.name}'",
                        lambda: find(window, wanted_role, name))

    def press(self, window, name, wanted_role="push button", action="Press"):
        node = self.control(window, wanted_role, name)
        wait_for(f"{name} to be enabled", lambda: "enabled" in states(node))
        act(node, action)

    def menu(self, *path):
        """Presses an entry of the main window's menus."""
        self.menu_of(self.main(), *path)

    @staticmethod
    def menu_of(window, *path):
        node = wait_for("the menu bar", lambda: find(window, "menu bar"))
        for depth, name in enumerate(path):
            below = [c for c in children(node) if c is not None]
            if depth > 0:
                below = [c for m in below for c in children(m)]
            found = [c for c in below if c.name == name]
            if not found:
                raise Missing(f"menu entry {path}; there are {[c.name for c in below]}")
            node = found[0]
        wait_for(f"menu entry {path} to be enabled", lambda: "enabled" in states(node))
        act(node, "Press")

    def type_into(self, node, text):
        """Replaces the text of a field."""
        try:
            node.queryEditableText().setTextContents(text)
        except GLib.Error as error:
            if not no_answer(error):  # a box about the text came up
                raise
        wait_for(f"'{text}' in '{node.name}', which holds '{text_of(node)}'",
                 lambda: text_of(node) == text)

    @staticmethod
    def key(name):
        """One key of the keyboard, as an on-screen keyboard presses it."""
        pyatspi.Registry.generateKeyboardEvent(KEYSYMS[name], None, pyatspi.KEY_SYM)


OUTPUTS = (".duo", ".dup", ".dut", ".duc")


def end_of_run(program):
    """The status line that tells how a run ended; boxes on the way are answered."""

    def look():
        for box in [w for w in program.windows() if role(w) == "alert"]:
            print("box:", " ".join(n.name for n, _ in walk(box)
                                   if n is not None and role(n) == "label"), flush=True)
            program.press(box, "OK")
        bar = find(program.main(), "status bar")
        said = " ".join(n.name for n, _ in walk(bar) if n is not None and n.name)
        return said if " ended with code " in said or "was ended by" in said else None

    return wait_for("how the run ended in the status line", look)


def hold_to_a_good_run(said, base):
    """A run whose end is told so has its four outputs, BASE.duo and the others, and names them."""
    assert " ended with code 0 " in said, said
    for path in [base + end for end in OUTPUTS]:
        assert os.path.basename(path) in said, f"{path} is not told of: {said}"
        assert os.path.exists(path) and os.path.getsize(path) > 0, f"{path} is not there: {said}"


KEYSYMS = {"Return": 0xFF0D, "Escape": 0xFF1B, "Tab": 0xFF09, "Down": 0xFF54, "Home": 0xFF50,
           "F2": 0xFFBF}
