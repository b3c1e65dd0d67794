"""The menu that the right button opens in a text."""


def open_menu(desk, x, y):
    """Opens the menu and waits until it stands still."""
    desk.settle()
    windows = desk.windows()
    desk.click(x, y, button=3)
    desk.until(lambda: desk.windows() > windows, "no menu opens")
    desk.settle()


def choose_degree(desk, x, y, look=lambda: None):
    """Goes to the sub-menu by the arrow keys, looks at it, and takes its first row; gives the view afterwards."""
    windows = desk.windows()
    open_menu(desk, x, y)
    desk.key("Up", "Up", "Right")  # over the field rows that can be chosen
    desk.until(lambda: desk.windows() > windows + 1, "no sub-menu opens")
    desk.settle()
    look()
    desk.key("Return")
    desk.until(lambda: desk.windows() <= windows, "the menu does not go away")
    return desk.settle()
