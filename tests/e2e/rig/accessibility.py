"""Reads another process's windows through the accessibility tree, as a screen reader does."""

import pyatspi
from gi.repository import Atspi, GLib

# What an element answers with when its window goes away while it is being read.
VANISHED = (GLib.GError, LookupError, NotImplementedError, AttributeError)


def application_of(process_id):
    desktop = pyatspi.Registry.getDesktop(0)
    desktop.set_cache_mask(Atspi.Cache.NONE)  # a cache is kept true by an event loop only, and there is none here
    for application in desktop:
        try:
            if application and application.get_process_id() == process_id:
                application.set_cache_mask(Atspi.Cache.NONE)
                return application
        except VANISHED:
            continue
    return None


def elements(root):
    """The shown elements below an element, itself included, top down. The cells of a table are left to `rows`."""
    try:
        yield root
        if root.getRoleName() in ("table", "tree table"):
            return
        children = list(root)
    except VANISHED:
        return
    for child in children:
        if child is not None:
            yield from elements(child)


def find(root, role, name=None, description=None):
    """The first shown element of a role (as getRoleName tells it) and, when given, an accessible name or
    description.
    """
    for element in elements(root):
        try:
            if (element.getRoleName() == role and name in (None, element.name) and
                    description in (None, element.description) and
                    element.getState().contains(pyatspi.STATE_SHOWING)):
                return element
        except VANISHED:
            continue
    return None


def text_of(element):
    return element.queryText().getText(0, -1)


def rows(table):
    """The texts of a table's cells, row by row."""
    grid = table.queryTable()
    return [[grid.getAccessibleAt(row, column).name for column in range(grid.nColumns)] for row in range(grid.nRows)]


def headers(table):
    grid = table.queryTable()
    return [grid.getColumnDescription(column) for column in range(grid.nColumns)]


def area(element):
    """(x, y, width, height) on the display."""
    box = element.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return box.x, box.y, box.width, box.height


def middle(element):
    x, y, width, height = area(element)
    return x + width // 2, y + height // 2


def cell_area(table, row, column):
    return area(table.queryTable().getAccessibleAt(row, column))
