#!/usr/bin/python3 -Wignore::DeprecationWarning
"""Walks through the running program as a screen reader does, and works with it by keys and by actions.

Everything is read over AT-SPI, from outside: assistive.py "WIDTH HEIGHT", the size of foto.jpg, which the
program was started with. Ends with 1, and says why, at the first thing that is not as it should be."""

import contextlib
import pathlib
import re
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

State = Atspi.StateType


def role(words):
    """The number that goes over the bus; its words are the reader's own, and change with its release."""
    return getattr(Atspi.Role, words.upper().replace(" ", "_"))


# What only holds others, and needs no name.
HOLDERS = {role(words) for words in ("filler", "panel", "scroll bar", "separator")}
# What a person meets.
NAMED = {
    role(words)
    for words in (
        "alert", "dialog", "frame", "image", "label", "menu bar", "menu item", "popup menu",
        "push button", "slider",
    )
}


def expected(source, row):
    """What the pattern of a row finds in a table of the tests, from top to bottom."""
    tests = pathlib.Path(__file__).resolve().parents[1]
    return re.findall(row, (tests / source).read_text(), re.MULTILINE)


def fail(why):
    sys.exit(f"FAILED: {why}")


@contextlib.contextmanager
def patience(milliseconds):
    """How long an answer of the program may take."""
    Atspi.set_timeout(milliseconds, 0)
    try:
        yield
    finally:
        Atspi.set_timeout(5000, 0)


def wait_for(what, condition):
    """Waits until the condition gives something, and gives it."""
    end = time.monotonic() + 20
    while time.monotonic() < end:
        try:
            with patience(200):
                if result := condition():
                    return result
        except GLib.Error:
            pass  # What was asked has gone meanwhile: the toolkit gives no answer then.
        time.sleep(0.02)
    there = (f"{found.get_role_name()} «{found.get_name()}»" for found in windows())
    return fail(f"{what}; there is {', '.join(there)}")


def children(node):
    found = (node.get_child_at_index(i) for i in range(node.get_child_count()))
    return [child for child in found if child is not None]


def is_(node, state):
    return node.get_state_set().contains(state)


def is_a(node, words):
    return node.get_role() == role(words)


def is_called(node, words, name):
    return is_a(node, words) and node.get_name() == name


def inside(node):
    """The node and everything in it, from top to bottom."""
    yield node
    for child in children(node):
        yield from inside(child)


def program():
    for application in children(Atspi.get_desktop(0)):
        if application.get_name() == "pixano":
            application.set_cache_mask(Atspi.Cache.NONE)
            return application
    return None


def windows():
    return [window for window in children(pixano) if is_(window, State.SHOWING)]


def find_window(words, name):
    return next((node for node in windows() if is_called(node, words, name)), None)


def window(words, name):
    return wait_for(f"no {words} «{name}»", lambda: find_window(words, name))


def front_window(words, name):
    found = window(words, name)
    wait_for(f"«{name}» is not in front", lambda: is_(found, State.ACTIVE))
    check(found)
    return found


def gone(words, name):
    wait_for(f"the {words} «{name}» stays", lambda: find_window(words, name) is None)


def check(top):
    """Every part of the window is something that assistive tools know, and has a name."""
    for node in inside(top):
        where = f"a {node.get_role_name()} «{node.get_name()}» in «{top.get_name()}»"
        if node.get_role() not in NAMED | HOLDERS:
            fail(f"what is {where}?")
        if node.get_role() in NAMED and not node.get_name().strip():
            fail(f"{where} has no name")


def named(top, words, *path):
    """The part with the last of the names, in the part with the name before it."""
    for name in path:
        found = next((node for node in inside(top) if is_called(node, words, name)), None)
        top = found or fail(f"no {words} «{name}» in «{top.get_name()}»")
    return top


def trigger(node, action, opens_dialog=False):
    """Does what the node offers under that name."""
    offered = [node.get_action_name(i) for i in range(node.get_n_actions())]
    if action not in offered:
        fail(f"«{node.get_name()}» offers {offered}, but not {action}")
    # As long as a menu's command shows a dialog there is no answer.
    with patience(100 if opens_dialog else 5000):
        try:
            node.do_action(offered.index(action))
        except GLib.Error:
            if not opens_dialog:
                raise


def keys(*names):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *names], check=True)


def expect_focus(node):
    wait_for(f"the keyboard is not at «{node.get_name()}»", lambda: is_(node, State.FOCUSED))


def tab_through(stops):
    """The tab key goes through these, from the first one, and then starts again."""
    expect_focus(stops[0])
    for node in stops[1:] + stops[:1]:
        keys("Tab")
        expect_focus(node)


def bring_to_front(title, node):
    """The window of that title gets the keyboard; the node is what is told of it."""

    def activated():
        # The search fails when any window goes meanwhile.
        search = ["xdotool", "search", "--onlyvisible", "--name", f"^{title}$"]
        for found in subprocess.run(search, capture_output=True, check=False).stdout.split():
            subprocess.run(["xdotool", "windowactivate", found], check=False)
        return is_(node, State.ACTIVE)

    wait_for(f"«{title}» does not come to the front", activated)


def canvas(what):
    """The canvas, once its title says that."""
    return window("frame", f"Immagine elaborata: {what} {width}x{height}")


def look_at_start():
    front_window("dialog", "Pixano")
    keys("Return")
    gone("dialog", "Pixano")


def look_at_windows():
    check(canvas("foto.jpg"))
    named(canvas("foto.jpg"), "image", "Immagine")
    preview = window("frame", f"Anteprima: foto.jpg ({width} x {height}) - 100%")
    check(preview)
    named(preview, "image", "Anteprima dell'immagine")


def look_at_menus():
    main = window("frame", "Pixano, finestra principale")
    check(main)
    entries = [node for node in inside(main) if is_a(node, "menu item")]
    # Separators are told of too, but not as entries.
    rows = expected("shell/menu_table_test.cpp", r'^    \{"\w+", "([^-"][^"]*)", "')
    if len(entries) != len(rows):
        fail(f"{len(entries)} menu entries, and not {len(rows)}")
    for entry in entries:
        if entry.get_n_actions() == 0:
            fail(f"«{entry.get_name()}» offers nothing")
    trigger(named(main, "menu item", "File"), "ShowMenu")
    opened = named(main, "menu item", "File", "Apri")
    wait_for("«File» does not open", lambda: is_(opened, State.SHOWING))
    keys("Escape")
    wait_for("«File» does not close", lambda: not is_(opened, State.SHOWING))
    trigger(named(main, "menu item", "File", "Inversione", "Specchio"), "Press")
    canvas("Specchio")
    return main


def look_at_opening():
    bring_to_front("Pixano 2.3", window("frame", "Pixano, finestra principale"))
    keys("ctrl+o")
    expect_focus(named(window("dialog", "Apri"), "text", "Nome del file:"))
    keys("Escape")
    gone("dialog", "Apri")


def look_at_palette():
    palette = window("frame", "Strumenti")
    bring_to_front("Strumenti", palette)
    check(palette)
    buttons = [node for node in inside(palette) if is_a(node, "push button")]
    rows = expected("panels/expected_buttons.h", r'^    \{"(\w+)", ')
    if len(buttons) != len(rows):
        fail(f"{len(buttons)} buttons in the palette, and not {len(rows)}")
    usable = [button for button in buttons if is_(button, State.SENSITIVE)]
    # The first one that could be used when the window was shown; "Originale" came before it since.
    at = [button.get_name() for button in usable].index("Riflesso Verticale Sinistro")
    tab_through(usable[at:] + usable[:at])
    return palette


def look_at_slider(palette):
    vetro = named(palette, "push button", "Vetro")
    trigger(vetro, "Press")
    window_ = front_window("dialog", "Vetro")
    slider = named(window_, "slider", "Forza")
    tab_through([slider, named(window_, "push button", "OK"), named(window_, "push button", "Annulla")])
    before = slider.get_current_value()
    keys("Right")
    wait_for("the slider does not move", lambda: slider.get_current_value() == before + 100)
    named(window_, "label", f"{before + 100:.0f}")
    keys("Escape")
    gone("dialog", "Vetro")
    canvas("Specchio")
    trigger(vetro, "Press")
    front_window("dialog", "Vetro")
    keys("Return")
    canvas("Vetro")


def look_at_information(main):
    trigger(named(main, "menu item", "?"), "Press", opens_dialog=True)
    description = front_window("dialog", "Descrizione del programma")
    text = named(description, "label", "Descrizione del programma")
    tab_through([text, named(description, "push button", "OK")])
    if "Buon Lavoro!" not in Atspi.Text.get_text(text, 0, -1):
        fail("the description cannot be read")
    keys("Escape")
    gone("dialog", "Descrizione del programma")
    trigger(named(main, "menu item", "Inf."), "Press", opens_dialog=True)
    front_window("dialog", "Informazioni")
    keys("Return")
    gone("dialog", "Informazioni")


def look_at_end(main):
    trigger(named(main, "menu item", "File", "Esci..."), "Press", opens_dialog=True)
    question = front_window("alert", "Avviso!")
    no = named(question, "push button", "No")
    tab_through([named(question, "push button", "Sì"), no])
    keys("Tab")
    expect_focus(no)
    keys("space")


width, height = sys.argv[1].split()
pixano = wait_for("the program cannot be found", program)
look_at_start()
look_at_windows()
look_at_opening()
main_window = look_at_menus()
look_at_slider(look_at_palette())
look_at_information(main_window)
look_at_end(main_window)
