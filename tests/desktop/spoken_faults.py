"""What is wrong with a window for those who are told it: controls without a name, with the role of
something else, with a value that is not there, and controls that can't be told apart."""

import math

from assistive import children, labels, role, states, text_of, walk

# What a person works with, by the role that it must have.
WORKED_WITH = {"push button", "toggle button", "check box", "radio button", "text", "password text",
               "combo box", "spin button", "slider", "table", "tree table", "tree", "list",
               "list box", "page tab", "page tab list", "image", "document text", "link", "dial",
               "html container", "document frame"}
# What only holds others, or is not for the keyboard.
AROUND = {"frame", "dialog", "alert", "panel", "filler", "label", "tool bar", "menu bar",
          "status bar", "page tab list", "separator", "split pane", "scroll pane", "layered pane",
          "menu item", "menu", "progress bar", "popup menu", "scroll bar", "viewport", "window",
          "tool tip", "list item", "table cell", "table row", "unknown", "column header",
          "row header", "table column header", "table row header", "paragraph"}
WITH_VALUE = {"spin button", "slider", "dial", "progress bar"}
# Tables that a person fills from nothing and no project fills: the walk sees them as they are then.
EMPTY_AT_FIRST = {"Parameters in bulk sediment", "Parameters in elutriate"}
MOST_CELLS = 400  # of a table that are read; the first and the last rows and columns


def place(node, parents):
    above = [p.name for p in parents if p.name and role(p) in ("panel", "page tab list", "dialog")]
    return f"{role(node)} '{node.name}'" + (f" in '{above[-1]}'" if above else "")


def some(count, most):
    """Of `count` the first and the last, about `most` in all."""
    if count <= most:
        return list(range(count))
    return list(range(most // 2)) + list(range(count - most // 2, count))


def value_of(node):
    """What stands between two ends; none where nothing is told."""
    try:
        value = node.queryValue().currentValue
    except NotImplementedError:
        return None
    return None if value is None or math.isnan(value) else value


def says_something(cell):
    return bool(cell.name.strip() or (text_of(cell) or "").strip() or role(cell) == "check box")


def faults_of_a_table(node):
    try:
        table = node.queryTable()
    except NotImplementedError:
        yield "has no cells"
        return
    rows, columns = table.nRows, table.nColumns
    for row in some(rows, 20):
        heading = table.getRowHeader(row)
        if heading is None or not heading.name.strip():
            yield f"row {row + 1} has no heading"
    for column in some(columns, 20):
        heading = table.getColumnHeader(column)
        if heading is None or not heading.name.strip():
            yield f"column {column + 1} has no heading"
    cells, saying = 0, 0
    for row in some(rows, 20):
        for column in some(columns, MOST_CELLS // 20):
            cells += 1
            cell = table.getAccessibleAt(row, column)
            if cell is None:
                yield f"row {row + 1}, column {column + 1} is no cell"
            elif role(cell) not in ("table cell", "check box"):
                yield f"row {row + 1}, column {column + 1} is a {role(cell)}"
            saying += cell is not None and says_something(cell)
    if cells and not saying and node.name not in EMPTY_AT_FIRST:
        yield "says nothing in any cell"


def faults_of_a_control(node, parents):
    told, kind = states(node), role(node)
    if kind not in WORKED_WITH | AROUND:
        yield f"role {kind} is not known"
    if "focusable" in told and "enabled" in told and kind not in WORKED_WITH | {"menu item",
                                                                                   "label"}:
        yield "takes the keyboard, and its role is none that is worked with"
    if kind in WORKED_WITH:
        # The toolkit gives a list that folds out its choice for a name.
        names = labels(node) + ([] if kind == "combo box" else [node.name])
        if not any(name.strip() for name in names):
            yield "has no name"
    if kind == "panel" and node.name and any(
            role(p) == "panel" and p.name == node.name for p in parents):
        yield "has the name of the panel around it"
    if kind in ("text", "password text") and text_of(node) is None:
        yield "has no text"
    if kind == "combo box":
        chosen = [c for c in children(node)]
        if not chosen:
            yield "has no lines to choose from"
    if kind == "image" and not node.description.strip() and "focusable" in told:
        yield "says nothing of what it shows"
    if kind in WITH_VALUE and value_of(node) is None:
        yield "has no value"
    if kind == "table":
        yield from faults_of_a_table(node)
    if kind == "page tab list" and not all(tab.name.strip() for tab in children(node)):
        yield "has a tab without a name"


def spoken_faults(window):
    """How many controls the window has, and its faults, a line each."""
    faults, controls, alike = [], 0, {}
    if not window.name.strip():
        faults.append("the window has no title")
    for node, parents in walk(window):
        if node is None:
            faults.append(f"something without a face in {place(parents[-1], parents[:-1])}")
            continue
        for fault in faults_of_a_control(node, parents):
            faults.append(f"{place(node, parents)}: {fault}")
        if role(node) not in WORKED_WITH:
            continue
        controls += 1
        if "focusable" in states(node):
            same = (role(node), node.name, tuple(sorted(set(labels(node)))), node.description)
            alike.setdefault(same, []).append(place(node, parents))
    for places in alike.values():
        if len(places) > 1:
            faults.append(f"{len(places)} that can't be told apart: {places[0]}")
    return controls, faults
