# SPDX-License-Identifier: MIT
"""What must hold for each program: the kit changes nothing but what the user customizes."""

import os
import shutil

from compare import (PLACES, ROOM, USE, changed, contents, custom_tool_bars, differences,
                     of_program, texts, tool_bar, without_given_texts, without_position)
from program import Program, plain
from programs import FLOATING, LEFT
from waiting import NotSo, wait_for

CUSTOM = "Of my own"
FULL_SCREEN = 4
TOGGLED = PLACES | {"hidden", "shownByToggle", "checked"}


class Checks:
    """All checks of one program, with a home folder and settings of their own."""

    def __init__(self, desktop, what, folder, output):
        self._desktop = desktop
        self._what = what
        self._folder = folder
        self._home = os.path.join(folder, "home")
        self._settings = os.path.join(folder, "kit.ini")
        self._log = os.path.join(output, what.name + ".log")
        self._pictures = os.path.join(output, what.name + "-")
        self._run = None
        self.failures = 0

    def run(self):
        try:
            self._prepare()
        except (NotSo, OSError) as error:
            self.failures += 1
            print(f"{self._what.name}: could not be prepared: {error}", flush=True)
            if self._run:
                self._picture("failed")
            self._stop()
            return
        for check in self._checks():
            self._check(check)

    def _checks(self):
        yield from (self.default_layout, self.dialog, self.restart, self.use)
        if self._what.toggle_tool_bar:
            yield self.hidden
            if self._what.keeps_hidden:
                yield self.shown_again
        if self._what.full_screen:
            yield self.full_screen
        yield from (self.minimized, self.damaged, self.repaired, self.without_kit)
        yield self.fixed if self._what.drag_to is None else self.moved

    # --- The checks, in their order ---

    def default_layout(self):
        """without a stored layout, everything is as without the kit"""
        report = self._start()
        self._expect([], differences(self._plain, without_given_texts(self._plain, report),
                                     {"triggered", "kit"}))
        for problem in report["kit"]["problems"]:
            print(f"    {problem}", file=self._notes)
        self._picture("default")
        self._end()
        if os.path.exists(self._settings):
            raise NotSo("the kit has stored a layout that nobody has changed")

    def dialog(self):
        """an action put on a toolbar and a new toolbar are there, and nothing else has changed"""
        before = self._start()
        dialog = self._run.open_dialog()
        self._picture("dialog")
        dialog.select_tool_bar(texts(before, tool_bar(before, self._what.tool_bar)))
        dialog.select_action(self._what.action)
        dialog.add()
        dialog.create(CUSTOM)
        dialog.select_action(self._what.action)
        dialog.add()
        dialog.select_action(self._what.other_action)
        dialog.add()
        self._picture("edited")
        dialog.accept()
        self._customized = self._run.report()
        self._picture("customized")
        self._expect_customized(before, self._customized)

    def restart(self):
        """after a restart everything is as it was left"""
        if self._run:
            self._end()
        report = self._start()
        self._expect([], differences(self._customized, report, USE | ROOM))
        self._picture("restarted")

    def use(self):
        """a click on the new button triggers the action once"""
        before = self._run.report()["triggered"]
        self._run.click_on_tool_bar(CUSTOM, 0)
        wait_for("nothing is triggered", lambda: self._run.report()["triggered"] != before)
        after = self._run.report()["triggered"]
        self._expect([1], [count - before.get(text, 0) for text, count in after.items()
                           if count != before.get(text, 0)])
        button = custom_tool_bars(self._run.report())[0]["entries"][0]
        if button["properties"]["checkable"]:
            self._run.click_on_tool_bar(CUSTOM, 0)
            wait_for("it is not off again", lambda: custom_tool_bars(
                self._run.report())[0]["entries"][0]["properties"]["checked"]
                != button["properties"]["checked"])

    def hidden(self):
        """a toolbar that the user has hidden stays hidden, also after a restart"""
        self._toggle_and_restart(hidden=True)

    def shown_again(self):
        """a toolbar that the user shows again stays shown, also after a restart"""
        self._toggle_and_restart(hidden=False)

    def full_screen(self):
        """full screen and back is as without the kit"""
        if not self._run:
            self._start()
        before = self._run.report()
        full, back = self._through_full_screen()
        name = self._what.tool_bar
        self._expect([], differences(of_program(self._plain_full, name), of_program(full, name),
                                     PLACES | {"text", "iconText", "toolTip"}))
        self._expect_same(before, back, USE | ROOM)
        self._end()
        self._expect([], differences(before, self._start(), USE | ROOM))

    def minimized(self):
        """as an icon and back, nothing has changed"""
        if not self._run:
            self._start()
        before = self._run.report()
        self._run.minimize()
        self._expect([], differences(before, self._run.report(), USE | ROOM))

    def damaged(self):
        """a damaged value changes nothing, is reported, and stays"""
        if not self._run:
            self._start()
        self._good = self._run.report()
        self._end()
        with open(self._settings, encoding="utf-8") as file:
            self._good_settings = file.read()
        bad = self._good_settings.replace("checksum", "checksun")
        self._write_settings(bad)
        report = self._start()
        if not report["kit"]["refused"]:
            raise NotSo("the damaged value was not refused")
        found = differences(self._plain, without_given_texts(self._plain, report), PLACES)
        self._expect([], found)
        self._picture("damaged")
        self._end()
        with open(self._settings, encoding="utf-8") as file:
            if file.read() != bad:
                raise NotSo("the damaged value was overwritten")

    def repaired(self):
        """with the good value, all is as customized"""
        self._write_settings(self._good_settings)
        report = self._start()
        self._expect([], differences(self._good, report, USE | ROOM))
        self._picture("repaired")
        self._end()

    def without_kit(self):
        """without the kit, the program starts as before"""
        report = self._start(with_kit=False)
        self._picture("without")
        self._expect([], differences(self._plain, report, PLACES))
        self._end()

    def moved(self):
        """toolbars that the user has dragged elsewhere are there after a restart"""
        if not self._run:
            self._start()
        places = [(self._what.place_of_tool_bar, self._what.drag_to), (("title", CUSTOM), FLOATING)]
        for which, place in places:
            self._run.drag_tool_bar(*which, place)
            wait_for(f"{which[1]} is not moved", lambda: self._place_of(*which) == place)
        after = without_position(self._run.report())
        self._picture("moved")
        self._end()
        self._start()
        # The window manager finds places for the window and the floating toolbars a bit later.
        wait_for("not everything is there", lambda: differences(
            after, without_position(self._run.report()), USE | ROOM), lambda lines: not lines)
        self._end()

    def fixed(self):
        """also a new toolbar cannot be dragged elsewhere, as those of the program"""
        before = self._start()
        self._run.drag_tool_bar("title", CUSTOM, LEFT)
        self._expect([], differences(before, self._run.report(), USE | ROOM))
        self._end()

    # --- Details ---

    def _prepare(self):
        os.mkdir(self._home)
        self._what.fill_home(self._home)
        # The first start may differ from all others.
        for _ in range(2):
            self._start(with_kit=False)
            self._end()
        shutil.copytree(self._home, self._home + ".start", symlinks=True)
        self._plain = self._start(with_kit=False)
        self._picture("plain")
        self._own_changes = set()
        if self._what.full_screen:
            self._plain_full, back = self._through_full_screen()
            self._own_changes |= changed(differences(self._plain, back, USE | ROOM))
        if self._what.toggle_tool_bar:
            before = self._run.report()
            for hidden in (True, False):
                after = self._toggle(hidden)
                self._own_changes |= changed(differences(before, after, TOGGLED))
        self._end()
        shutil.rmtree(self._home)
        os.rename(self._home + ".start", self._home)
        self._notes = open(self._log + ".problems", "w", encoding="utf-8")

    def _check(self, check):
        try:
            check()
        except (NotSo, OSError, ValueError, LookupError, AttributeError) as error:
            self.failures += 1
            print(f"{self._what.name}: FAILED: {check.__doc__}: {error}", flush=True)
            if self._run:
                self._picture(check.__name__ + "-failed")
                self._stop()
        else:
            print(f"{self._what.name}: {check.__doc__}", flush=True)

    def _start(self, with_kit=True):
        if self._run:
            self._stop()
        self._run = Program(self._desktop, self._what, self._folder, self._log, with_kit)
        return self._run.report()

    def _end(self):
        if self._run:
            self._run.close()
        self._run = None

    def _stop(self):
        if self._run:
            self._run.stop()
        self._run = None

    def _picture(self, name):
        self._run.picture(self._pictures + name + ".png")

    def _write_settings(self, text):
        with open(self._settings, "w", encoding="utf-8") as file:
            file.write(text)

    def _expect_customized(self, before, after):
        name = self._what.tool_bar
        new = self._what.action[-1]
        self._expect([], differences(of_program(before, name), of_program(after, name), PLACES))
        now, then = tool_bar(after, name), tool_bar(before, name)
        kept = [entry for entry in now["entries"] if entry["name"] in contents(then)]
        self._expect(contents(then), [entry["name"] for entry in kept])
        self._expect(1, len(now["entries"]) - len(kept), f"buttons for {new}")
        self._expect([], differences(then["entries"], kept, PLACES))
        bars = custom_tool_bars(after)
        self._expect([CUSTOM], [bar["title"] for bar in bars])
        self._expect(2, len(bars[0]["entries"]))

    def _toggle_and_restart(self, hidden):
        # What was done before, the program may forget as well.
        if not self._run or not self._what.keeps_hidden:
            self._start()
        before = self._run.report()
        after = self._toggle(hidden)
        self._expect_same(of_program(before), of_program(after), TOGGLED)
        self._picture("hidden" if hidden else "shown")
        self._end()
        if self._what.keeps_hidden:
            # What the program has kept itself, the kit need not keep.
            self._expect([], differences(after, self._start(), USE | ROOM | {"kit"}))
        else:
            self._expect([], differences(before, self._start(), USE | ROOM))

    def _toggle(self, hidden):
        self._what.toggle_tool_bar(self._run)
        name = self._what.tool_bar
        wait_for("the toolbar is not toggled",
                 lambda: tool_bar(self._run.report(), name)["hidden"] == hidden)
        return self._run.report()

    def _place_of(self, key, value):
        bar = next(bar for bar in self._run.report()["toolBars"] if plain(bar[key]) == value)
        return FLOATING if bar["floating"] else bar["area"]

    def _through_full_screen(self):
        enter, leave = self._what.full_screen
        enter(self._run)
        wait_for("the window is not full", lambda: self._run.report()["state"] & FULL_SCREEN)
        full = self._run.report()
        self._picture("full")
        leave(self._run)
        wait_for("the window is still full",
                 lambda: not self._run.report()["state"] & FULL_SCREEN)
        return full, self._run.report()

    def _expect_same(self, before, after, ignored):
        """No differences, except where the program itself has some without the kit."""
        self._expect([], [line for line in differences(before, after, ignored)
                          if not changed([line]) & self._own_changes])

    @staticmethod
    def _expect(wanted, found, what=""):
        if wanted != found:
            lines = found if found and not wanted else [f"{wanted!r}, not {found!r}"]
            raise NotSo("; ".join([what] * bool(what) + [str(line) for line in lines]))

