"""What assistive technology is told of the running program, and what the keyboard alone can reach."""
from desk import *

WITH_VALUE = {"slider", "spin button", "progress bar", "scroll bar"}
# Named by what they show or by the window they are in.
NAMELESS = {"scroll bar", "split pane"}
# The arrow keys go to these.
INSIDE_OTHERS = {"table cell", "list item", "image"}


def faults(top):
    """What is wrong in the tree below a window, in words."""
    found = []
    for widget in top.everything():
        role, showing = widget.role, widget.has(State.SHOWING)
        if not showing:
            continue
        if widget.has(State.FOCUSABLE):
            if not widget.name.strip() and role not in NAMELESS and not is_empty_cell(widget):
                found.append(f"no name: {path_to(widget)}")
            if role in ("filler", "panel", "unknown", "invalid"):
                found.append(f"no telling role: {path_to(widget)}")
        if role in WITH_VALUE and "Value" not in widget.node.get_interfaces():
            found.append(f"no value: {path_to(widget)}")
        # Such a menu's name is its choice.
        if role == "combo box" and not labels_of(widget) and not widget.node.get_description():
            found.append(f"doesn't tell what is chosen: {path_to(widget)}")
    return found


def is_empty_cell(widget):
    """A row's other cells name it."""
    return widget.role == "table cell" and any(
        sibling.name for sibling in Widget(widget.node.get_parent()).children()
        if sibling.area[1] == widget.area[1])


def labels_of(widget):
    return [relation for relation in widget.node.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY]


def path_to(widget):
    names = [str(widget)]
    node = widget.node.get_parent()
    while node and node.get_role_name() != "application":
        if node.get_name():
            names.append(f"{node.get_role_name()} “{node.get_name()}”")
        node = node.get_parent()
    return " in ".join(names)


class Access(ProductTest):
    def assertFaultless(self, program):
        found = [fault for window in program.windows() for fault in faults(window)]
        self.assertEqual(found, [], "\n" + "\n".join(found))

    def with_dialog(self, program, shortcut):
        keys(shortcut)
        program.dialog()
        with self.subTest(shortcut):
            self.assertFaultless(program)
        keys("Escape")
        program.dialog_is_gone()

    def test_all_that_takes_the_keyboard_has_a_name_and_a_role(self):
        program = self.start()
        self.assertFaultless(program)
        for shortcut in "ctrl+i", "ctrl+alt+i", "ctrl+shift+s", "ctrl+o":
            self.with_dialog(program, shortcut)
        # One filter of every kind of input.
        for name in "twirl dist", "false color", "affine transform", "color matrix", "blend with mask", "qr code":
            with self.subTest(name):
                program.pick(name)
                keys("F6")
                self.assertFaultless(program)
        for mode in "alt+2", "alt+3":
            keys(mode)
            tree = program.find("tree", ".* effects")
            for effect in [cell.name for cell in tree.children() if cell.role == "table cell" and cell.name]:
                with self.subTest(effect):
                    program.find("table cell", effect).click()
                    wait(lambda: program.seen("label", effect), "its panel")
                    self.assertFaultless(program)

    def assertAllReached(self, program):
        """Tab comes around, and has been at everything that takes the keyboard."""
        def widgets(*states):
            return {(w.role, w.name, w.area) for w in program.window.everything(("tree", "list", "menu bar"))
                    if w.has(*states) and w.role not in INSIDE_OTHERS}

        missed = widgets(State.FOCUSABLE, State.ENABLED)
        for _ in range(2 * len(missed) + 8):  # the picture is stayed at for its points
            keys("Tab")
            missed -= wait(lambda: widgets(State.FOCUSED), "something to have the keyboard")
            if not missed:
                return
        self.fail(f"Tab never comes to {missed}")

    def test_tab_goes_everywhere(self):
        program = self.start()
        program.pick("twirl dist")
        program.find("slider", "Angle")
        self.assertAllReached(program)
        for mode, effect in ("alt+2", "Surface Rotate"), ("alt+3", "Simple Objects"):
            keys(mode)
            program.find("table cell", effect).click()
            wait(lambda: program.seen("label", effect), "its panel")
            self.assertAllReached(program)


main()
