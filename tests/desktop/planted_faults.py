#!/usr/bin/python3
"""Holds spoken_faults to windows that are made up: a sound one has no fault, and each fault that is
planted is found, and nothing besides; so is a window that was not looked at. Ends with 1 otherwise.
walk.sh starts it before it trusts the rest; it needs neither the program nor a bus."""

import sys

import pyatspi

from expected_windows import EXPECTED, not_seen
from spoken_faults import spoken_faults

PLAIN = (pyatspi.STATE_ENABLED, pyatspi.STATE_SHOWING)
KEYED = PLAIN + (pyatspi.STATE_FOCUSABLE,)


class Answer:
    """What an interface of the bus answers."""

    def __init__(self, **parts):
        self.__dict__.update(parts)


class Node:
    """A node with the interfaces that it is given; the others it has not, as on the bus."""

    def __init__(self, role, name="", parts=(), description="", told=None, text=None, value=None,
                 table=None, label=None):
        self.kind, self.name, self.parts, self.description = role, name, list(parts), description
        self.told = told or (PLAIN if role in ("frame", "label", "table cell", "panel",
                                               "column header", "list item",
                                               "progress bar") else KEYED)
        self.interfaces = {"text": text, "value": value, "table": table}
        self.label, self.childCount = label, len(self.parts)

    def getRoleName(self):
        return self.kind

    def getState(self):
        return Answer(getStates=lambda: list(self.told))

    def getChildAtIndex(self, index):
        return self.parts[index]

    def getRelationSet(self):
        if self.label is None:
            return []
        return [Answer(getRelationType=lambda: pyatspi.RELATION_LABELLED_BY,
                       getNTargets=lambda: 1, getTarget=lambda index: Answer(name=self.label))]

    def interface(self, kind):
        if self.interfaces[kind] is None:
            raise NotImplementedError
        return self.interfaces[kind]

    def queryText(self):
        text = self.interface("text")
        return Answer(getText=lambda start, end: text)

    def queryValue(self):
        return Answer(currentValue=self.interface("value"))

    def queryTable(self):
        return self.interface("table")


def table(cells, headings=True, name="Depths", kind="table cell"):
    """A table of one row for each list of texts; None is a cell that is not there."""
    heading = Node("column header", "heading" if headings else "")
    made = [[None if text is None else Node(kind, text) for text in row] for row in cells]
    return Node("table", name, table=Answer(
        nRows=len(made), nColumns=len(made[0]) if made else 0,
        getRowHeader=lambda row: heading, getColumnHeader=lambda column: heading,
        getAccessibleAt=lambda row, column: made[row][column]))


def sound():
    """One of each, without a fault. Fields, cells and values may be empty, or 0."""
    return [Node("push button", "OK"), Node("text", "Depth", text=""),
            Node("spin button", "Count", value=0), Node("slider", "Zoom", value=0),
            Node("progress bar", "Run", value=0), Node("image", "Sketch", description="A barge."),
            Node("combo box", "ft", parts=[Node("list item", "ft")], label="Unit"),
            Node("page tab list", "Pages", parts=[Node("page tab", "First")]),
            table([["", "1"], ["", ""]]), table([], name="No rows"),
            table([[""]], name="Parameters in elutriate"),
            table([["", ""]], name="Marks", kind="check box")]


PLANTED = [
    ("a button without a name", [Node("push button")], ["has no name"]),
    ("a role that is none", [Node("gadget", "G", told=PLAIN)], ["role gadget is not known"]),
    ("a panel that takes the keyboard", [Node("panel", "P", told=KEYED)],
     ["takes the keyboard, and its role is none that is worked with"]),
    ("two that are alike", [Node("push button", "More"), Node("push button", "More")],
     ["2 that can't be told apart: push button 'More'"]),
    ("a panel within its like", [Node("panel", "Site", parts=[Node("panel", "Site")])],
     ["has the name of the panel around it"]),
    ("something without a face", [None], ["something without a face in frame 'Window'"]),
    ("a text without its interface", [Node("text", "Width")], ["has no text"]),
    ("a password without its interface", [Node("password text", "Word")], ["has no text"]),
    ("a spin button without a value", [Node("spin button", "Rows")], ["has no value"]),
    ("a spin button with no number", [Node("spin button", "Rows", value=float("nan"))],
     ["has no value"]),
    ("a slider without a value", [Node("slider", "Scale")], ["has no value"]),
    ("a dial without a value", [Node("dial", "Turn")], ["has no value"]),
    ("a progress bar without a value", [Node("progress bar", "Save")], ["has no value"]),
    ("a list without lines", [Node("combo box", label="Form")], ["has no lines to choose from"]),
    ("a list that only its choice names", [Node("combo box", "m", parts=[Node("list item", "m")])],
     ["has no name"]),
    ("a picture without words", [Node("image", "Plot")], ["says nothing of what it shows"]),
    ("a tab without a name", [Node("page tab list", "Tabs", parts=[
        Node("page tab", "", told=PLAIN)])], ["has a tab without a name", "has no name"]),
    ("a table without its interface", [Node("table", "Layers")], ["has no cells"]),
    ("a table that says nothing", [table([["", " "], ["", ""]], name="Layers")],
     ["says nothing in any cell"]),
    ("a table with a hole", [table([["1", None]], name="Layers")],
     ["row 1, column 2 is no cell"]),
    ("a table of buttons", [table([["1"]], name="Layers", kind="push button")],
     ["row 1, column 1 is a push button"]),
    ("a table without headings", [table([["1"]], False, "Layers")],
     ["row 1 has no heading", "column 1 has no heading"]),
]


def wrong_about(what, parts, expected, title="Window"):
    """A line when the faults found are not those expected, in whatever order."""
    _, faults = spoken_faults(Node("frame", title, parts))
    open_faults = list(faults)
    for words in expected:
        match = [f for f in open_faults if f == words or f.endswith(": " + words)]
        if not match:
            return f"{what}: '{words}' is not found, but {faults}"
        open_faults.remove(match[0])
    return f"{what}: found besides {open_faults}" if open_faults else None


def main():
    wrong = [wrong_about("a sound window", sound(), []),
             wrong_about("a window without a title", sound(), ["the window has no title"], "")]
    wrong += [wrong_about(what, sound() + parts, expected) for what, parts, expected in PLANTED]
    looks = list(EXPECTED["velocities"])
    if not_seen("velocities", looks) or not_seen("velocities", looks[1:]) != looks[:1]:
        wrong.append("one look of four that is missing is not told")
    for line in filter(None, wrong):
        print(line)
    return 1 if any(wrong) else 0


if __name__ == "__main__":
    sys.exit(main())
