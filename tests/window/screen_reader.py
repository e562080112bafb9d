#!/usr/bin/python3
"""Uses the running Vantorel as a screen reader does: through the accessibility bus alone.

Each argument is a step "VERB ROLE: NAME", for the control with that role and that name:

    see      waits until it shows
    miss     waits until it does not show
    press    does its main action, such as a button's press
    on, off  waits until it is checked, or is not
    focus    waits until it has the keyboard

It ends with 0 after the last step, or with 1 and a list of what it found instead.
"""

import sys
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# The names before and after a change of the library: one is missing here, the other deprecated there.
warnings.simplefilter("ignore", DeprecationWarning)

PATIENCE = 20  # seconds; less than those who wait for this program have
PAUSE = 0.05
MAIN_ACTIONS = ("Press", "Toggle")


def children(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child


def walk(node):
    yield node
    for child in children(node):
        yield from walk(child)


def program():
    for application in children(Atspi.get_desktop(0)):
        if application.get_name() == "Vantorel":
            return application
    return None


def is_showing(node):
    return node.get_state_set().contains(Atspi.StateType.SHOWING)


def controls():
    """All that shows of the program. What goes away meanwhile ends the list early."""
    application = program()
    found = []
    if application is None:
        return found
    application.clear_cache()
    try:
        for node in walk(application):
            if is_showing(node):
                found.append(node)
    except GLib.Error:
        pass
    return found


def describe(node):
    return f"{node.get_role_name()}: {node.get_name()}"


def find(control):
    return next((node for node in controls() if describe(node) == control), None)


def has(state):
    return lambda node: node is not None and node.get_state_set().contains(state)


def is_unchecked(node):
    return node is not None and not node.get_state_set().contains(Atspi.StateType.CHECKED)


def act(node):
    names = [Atspi.Action.get_action_name(node, index) for index in range(node.get_n_actions())]
    main = next((names.index(name) for name in MAIN_ACTIONS if name in names), None)
    return main is not None and Atspi.Action.do_action(node, main)


CONDITIONS = {
    "see": lambda node: node is not None,
    "miss": lambda node: node is None,
    "on": has(Atspi.StateType.CHECKED),
    "off": is_unchecked,
    "focus": has(Atspi.StateType.FOCUSED),
    "press": lambda node: node is not None and act(node),
}


def carry_out(step):
    verb, control = step.split(" ", 1)
    condition = CONDITIONS[verb]
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        try:
            if condition(find(control)):
                return True
        except GLib.Error:
            pass  # it went away just now
        time.sleep(PAUSE)
    return False


def main(steps):
    for step in steps:
        if not carry_out(step):
            print(f"failed: {step}; there is:", file=sys.stderr)
            print("\n".join(describe(node) for node in controls()), file=sys.stderr)
            return 1
    return 0


sys.exit(main(sys.argv[1:]))
