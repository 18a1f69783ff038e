# SPDX-License-Identifier: MIT
"""Differences between two reports of a window."""

# What changes whenever a program is used.
USE = {"focus", "triggered"}
# What follows from the room that a toolbar has.
ROOM = {"rect", "shown", "central"}
PLACES = USE | ROOM | {"geometry", "kit"}


def differences(before, after, ignored=frozenset(), path=""):
    """Every difference as a line; keys in ignored are left out at every level."""
    if isinstance(before, dict) and isinstance(after, dict):
        lines = []
        for key in sorted(before.keys() | after.keys()):
            if key not in ignored:
                lines += differences(before.get(key), after.get(key), ignored, f"{path}/{key}")
        return lines
    if isinstance(before, list) and isinstance(after, list):
        return _of_lists(before, after, ignored, path)
    return [] if before == after else [f"{path}: {_short(before)} became {_short(after)}"]


def changed(lines):
    """What these differences are of."""
    return {line.partition(": ")[0] for line in lines}


def _of_lists(before, after, ignored, path):
    names = [_names(before), _names(after)]
    if len(before) != len(after) or names[0] != names[1]:
        gone = _without(*names)
        new = _without(*reversed(names))
        if gone or new or len(before) != len(after):
            return [f"{path}: without {gone}, with {new} more"]
        return [f"{path}: another order: {names[0]} became {names[1]}"]
    lines = []
    for index, (one, other) in enumerate(zip(before, after)):
        lines += differences(one, other, ignored, f"{path}[{names[0][index] or index}]")
    return lines


def _names(entries):
    return [_name(entry) if isinstance(entry, dict) else _short(entry) for entry in entries]


def _name(entry):
    return entry.get("name") or entry.get("objectName") or entry.get("text") or entry.get("class")


def _without(names, others):
    rest = list(others)
    left = []
    for name in names:
        if name in rest:
            rest.remove(name)
        else:
            left.append(name)
    return left


def _short(value):
    text = repr(value)
    return text if len(text) < 80 else text[:77] + "..."


def tool_bar(report, name):
    """The toolbar with this name; None if there is none."""
    return next((bar for bar in report["toolBars"] if bar["name"] == name), None)


def custom_tool_bars(report):
    return [bar for bar in report["toolBars"] if bar["custom"]]


def contents(bar):
    return [entry["name"] for entry in bar["entries"]]


def texts(report, bar):
    """The texts of the actions on a toolbar."""
    all_texts = {action["name"]: action["text"] for action in report["actions"]}
    return [all_texts[name] for name in contents(bar) if name in all_texts]


def of_program(report, *without):
    """The report without the kit's toolbars and without the content of those in without."""
    bars = []
    for bar in report["toolBars"]:
        if bar["custom"]:
            continue
        bars.append({**bar, "entries": []} if bar["name"] in without else bar)
    names = [bar["name"] for bar in bars]
    order = [name for name in report["order"] if name in names]
    return {**report, "toolBars": bars, "order": order}


def without_position(report):
    """The report without the place of the window, which a window manager may have chosen."""
    return {**report, "geometry": report["geometry"][2:]}


def without_given_texts(before, after):
    """The report after, without the texts that the kit has given to actions that had none."""
    actions = []
    for one, other in zip(before["actions"], after["actions"]):
        given = {"text", "iconText", "toolTip"} if not one["text"] else set()
        actions.append({**other, **{key: one[key] for key in given}})
    if len(before["actions"]) != len(after["actions"]):
        actions = after["actions"]
    return {**after, "actions": actions}
