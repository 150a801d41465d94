"""The rows of the table, by theme. A row is a function that gives its lines."""

WORKS = {}


def work(name, says):
    """Makes a function a row that can be asked for by its name."""

    def register(function):
        WORKS[name] = (says, function)
        return function

    return register
