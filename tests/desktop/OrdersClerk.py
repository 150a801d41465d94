"""A clerk at the real window, without the mouse: menus, boxes and the field for finding, and where the keys go behind."""

import unittest

from desktop import Desktop
from orders_program import PICTURES, ProgramTest, cells_of, wait_for
from OrdersDrive import CUSTOMER, Session


class OrdersClerk(ProgramTest):
    def setUp(self):
        super().setUp()
        self.desktop = Desktop({**self.environment, "QT_QPA_PLATFORM": "xcb", "XDG_RUNTIME_DIR": str(self.folder)})
        self.addCleanup(self.desktop.close)
        self.orders = Session(self.desktop, self.folder)
        self.window = self.desktop.window("2,000 orders")
        self.desktop.activate(self.window)

    def box(self):
        return wait_for("a box in front", lambda: self.front() not in ("", self.window) and self.front())

    def front(self):
        return self.desktop.ask("getactivewindow")

    def back(self):
        wait_for("the window in front", lambda: self.front() == self.window)

    def types(self, row, text, result):
        before = self.orders.now()
        self.desktop.type(text)
        self.orders.wait(f"EditorChange {row}, {CUSTOMER}: {result}", before)

    def test_without_the_mouse(self):
        # Two new rows, one by its key and one by the menu: at once the user types in them.
        self.desktop.key("ctrl+n")
        self.orders.wait("EnterCell 2, 2: ")
        self.types(2, "Ada", "Ada")
        self.desktop.key("alt+o", "e")
        self.orders.wait("EnterCell 2002, 2: ")
        self.types(2002, "Zoe", "Zoe")

        # Finding goes to both, while the keys stay in the field; behind it they go to the cell.
        before = self.orders.now()
        self.desktop.key("ctrl+f")
        self.desktop.type("ada")
        self.desktop.key("Return")
        wait_for("the first row", lambda: (self.orders.entered(before) or ())[:1] == (2,))
        self.desktop.key("ctrl+a")
        self.desktop.type("Zoe")
        self.desktop.key("Return")
        wait_for("the last row", lambda: (self.orders.entered(before) or ())[:1] == (2002,))
        self.desktop.save_picture(PICTURES / "orders-find.png")
        self.desktop.key("Escape")
        self.types(2002, "X", "XZoe")

        # Deleting asks; cancelled, the user types on, and confirmed, in the row above.
        self.desktop.key("ctrl+minus")
        self.box()
        self.desktop.key("Escape")
        self.back()
        self.types(2002, "Y", "YXZoe")
        self.desktop.key("ctrl+minus")
        self.box()
        self.desktop.save_picture(PICTURES / "orders-delete.png")
        self.desktop.key("alt+d")
        self.back()
        wait_for("the row above", lambda: self.orders.entered(0)[:2] == (2001, CUSTOMER))
        last = self.orders.entered(0)[2]
        self.types(2001, "Z", "Z" + last)

        # Colours: the box is left by Enter, and the user is back in the cell.
        self.desktop.key("ctrl+shift+b")
        self.box()
        self.desktop.save_picture(PICTURES / "orders-colours.png")
        self.desktop.key("Return")
        self.back()
        self.types(2001, "W", "WZ" + last)

        # Loading again asks, as there is something to lose.
        self.desktop.key("F5")
        self.box()
        self.desktop.key("alt+r")
        self.back()
        wait_for("the load", lambda: sum(line.startswith("loaded 2,000") for line in self.orders.lines()) == 2)
        self.desktop.key("ctrl+q")
        wait_for("the end of the program", lambda: self.orders.program.poll() is not None)
        self.assertEqual(self.orders.program.returncode, 0)
        cells = cells_of(self.orders.log)
        self.assertEqual(cells[2000, CUSTOMER], last)
        self.assertNotIn("Ada", {cells[row, CUSTOMER] for row in range(1, 2001)})


if __name__ == "__main__":
    unittest.main()
