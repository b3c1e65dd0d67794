"""The toolbar of a session, used as a person uses it."""

# The middle of each control, in pixels from the top left corner of the toolbar.
CONTROLS = {"font": (200, 15), "size": (292, 15), "color": (398, 15), "bold": (467, 15), "stack": (571, 15),
            "undo": (705, 15), "redo": (731, 15), "spacing": (155, 40), "numbering": (180, 40), "columns": (205, 40),
            "attachment": (230, 40), "OK": (724, 40)}


class Toolbar:
    """The toolbar that a session has just opened, at the place that the desk has put it to."""

    def __init__(self, desk):
        self.desk, self.place = desk, desk.toolbar_place
        desk.until(desk.toolbars, "no toolbar opens")
        desk.settle()

    def middle(self, name):
        return tuple(corner + offset for corner, offset in zip(self.place, CONTROLS[name]))

    def press(self, name):
        self.desk.click(*self.middle(name))

    def type_into(self, name, text):
        """Types into a box in place of what stands there."""
        self.press(name)
        self.desk.key("ctrl+a")
        self.desk.type(text)
        self.desk.key("Return")

    def open(self, name):
        """Opens the list or the menu of a control, and waits for it."""
        windows = self.desk.windows()
        self.press(name)
        self.desk.until(lambda: self.desk.windows() > windows, f"{name}: nothing opens")
        self.desk.settle()

    def choose(self, name, rows_down):
        """Chooses the row that stands so many below the present one of a list, or below the top of a menu."""
        self.open(name)
        self.desk.key(*["Down"] * rows_down, "Return")

    def ask(self, name, rows_down, *keys):
        """Chooses the row of a menu that opens a dialog, and gives it keys until it goes."""
        windows = self.desk.windows()
        self.choose(name, rows_down)
        self.desk.until(lambda: self.desk.windows() > windows, f"{name}: no dialog opens")
        self.desk.settle()
        for chord in keys:
            self.desk.key(chord)
            self.desk.settle()
        self.desk.until(lambda: self.desk.windows() <= windows, f"{name}: the dialog does not go away")
