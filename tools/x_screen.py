"""An invisible screen of its own (Xvfb) and what a trial has to see on it: when a program's window is mapped, painted
and answers. Times are seconds of time.monotonic(). Needs Xvfb and libX11; every fault is a Trial_Error.
"""
import ctypes
import os
import select
import subprocess
import time
from pathlib import Path

WIDTH, HEIGHT = 1600, 1000
# Smaller ones are tool tips, splash screens and helpers.
MAIN_WINDOW_WIDTH = 400
# The bare screen; no window has this colour, so what still shows it is not painted.
BARE = 0xF70BD3
POLL_S = 0.001
STRIPS = 9

STRUCTURE_NOTIFY, SUBSTRUCTURE_NOTIFY = 1 << 17, 1 << 19
MAP_NOTIFY, CLIENT_MESSAGE = 19, 33
Z_PIXMAP, ALL_PLANES, VIEWABLE = 2, 0xFFFFFFFF, 2
REVERT_TO_PARENT = 2

Window = Atom = ctypes.c_ulong
ERROR_HANDLER = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)


class Trial_Error(Exception):
    pass


class Map_Event(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("event", Window), ("window", Window),
                ("override_redirect", ctypes.c_int)]


class Client_Event(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("sent", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", Window), ("message", Atom), ("format", ctypes.c_int),
                ("data", ctypes.c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("type", ctypes.c_int), ("map", Map_Event), ("client", Client_Event), ("size", ctypes.c_long * 24)]


class Attributes(ctypes.Structure):
    _fields_ = [("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int), ("height", ctypes.c_int),
                ("border", ctypes.c_int), ("depth", ctypes.c_int), ("visual", ctypes.c_void_p), ("root", Window),
                ("kind", ctypes.c_int), ("bit_gravity", ctypes.c_int), ("win_gravity", ctypes.c_int),
                ("backing", ctypes.c_int), ("planes", ctypes.c_ulong), ("pixel", ctypes.c_ulong),
                ("save_under", ctypes.c_int), ("colormap", ctypes.c_ulong), ("installed", ctypes.c_int),
                ("map_state", ctypes.c_int), ("rest", ctypes.c_long * 5)]


class Image(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("offset", ctypes.c_int), ("format", ctypes.c_int),
                ("data", ctypes.c_void_p), ("byte_order", ctypes.c_int), ("unit", ctypes.c_int),
                ("bit_order", ctypes.c_int), ("pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("line_bytes", ctypes.c_int), ("pixel_bits", ctypes.c_int)]


class Class_Hint(ctypes.Structure):
    _fields_ = [("instance", ctypes.c_char_p), ("klass", ctypes.c_char_p)]


def load_x11():
    try:
        x = ctypes.CDLL("libX11.so.6")
    except OSError as fault:
        raise Trial_Error(f"libX11 is missing: {fault}") from fault
    pointer, integer, unsigned, long = ctypes.c_void_p, ctypes.c_int, ctypes.c_uint, ctypes.c_ulong
    x.XOpenDisplay.restype = pointer
    x.XDefaultRootWindow.restype = Window
    x.XInternAtom.restype = Atom
    x.XGetImage.restype = ctypes.POINTER(Image)
    for name, arguments in {
        "XOpenDisplay": [ctypes.c_char_p], "XDefaultRootWindow": [pointer], "XConnectionNumber": [pointer],
        "XInternAtom": [pointer, ctypes.c_char_p, integer], "XSelectInput": [pointer, Window, ctypes.c_long],
        "XSetWindowBackground": [pointer, Window, long], "XClearWindow": [pointer, Window],
        "XSync": [pointer, integer], "XPending": [pointer], "XNextEvent": [pointer, ctypes.POINTER(Event)],
        "XGetWindowAttributes": [pointer, Window, ctypes.POINTER(Attributes)],
        "XGetImage": [pointer, Window, integer, integer, unsigned, unsigned, long, integer],
        "XDestroyImage": [ctypes.POINTER(Image)],
        "XFetchName": [pointer, Window, ctypes.POINTER(ctypes.c_char_p)],
        "XGetClassHint": [pointer, Window, ctypes.POINTER(Class_Hint)],
        "XSendEvent": [pointer, Window, integer, ctypes.c_long, ctypes.POINTER(Event)],
        "XSetInputFocus": [pointer, Window, integer, long], "XSetErrorHandler": [ERROR_HANDLER],
    }.items():
        getattr(x, name).argtypes = arguments
    return x


class X_Screen:
    """Starts the screen; use it in a `with`, which ends it again."""

    def __init__(self):
        self.x = load_x11()
        # A window may vanish between two requests; the answers tell that too.
        self.on_error = ERROR_HANDLER(lambda display, error: 0)
        self.x.XSetErrorHandler(self.on_error)

    def __enter__(self):
        ours, theirs = os.pipe()
        try:
            self.server = subprocess.Popen(
                ["Xvfb", "-displayfd", str(theirs), "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp",
                 "-noreset"], pass_fds=[theirs], stderr=subprocess.DEVNULL)
        except OSError as fault:
            raise Trial_Error(f"Xvfb cannot be started: {fault}") from fault
        os.close(theirs)
        with os.fdopen(ours) as numbers:
            number = numbers.readline().strip()
        self.name = f":{number}"
        self.display = number and self.x.XOpenDisplay(self.name.encode())
        if not self.display:
            self.__exit__()
            raise Trial_Error("Xvfb opens no screen")
        self.root = self.x.XDefaultRootWindow(self.display)
        self.protocols, self.ping, self.delete = (
            self.x.XInternAtom(self.display, name, 0)
            for name in (b"WM_PROTOCOLS", b"_NET_WM_PING", b"WM_DELETE_WINDOW"))
        self.x.XSelectInput(self.display, self.root, STRUCTURE_NOTIFY | SUBSTRUCTURE_NOTIFY)
        self.x.XSetWindowBackground(self.display, self.root, BARE)
        self.x.XClearWindow(self.display, self.root)
        self.x.XSync(self.display, 0)
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()

    def environment(self, home):
        """For a program on this screen whose own files all lie in the folder `home`."""
        made = {"DISPLAY": self.name, "QT_QPA_PLATFORM": "xcb", "TMPDIR": f"{home}/tmp"}
        for kind in ("CONFIG", "DATA", "CACHE", "STATE"):
            made[f"XDG_{kind}_HOME"] = f"{home}/{kind.lower()}"
        made["XDG_RUNTIME_DIR"] = f"{home}/runtime"
        for path in list(made.values())[2:]:
            Path(path).mkdir(mode=0o700, parents=True, exist_ok=True)
        # No bus lies there: the user's own must not be met, and a missing address would start one that outlives the trial.
        made["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={made['XDG_RUNTIME_DIR']}/bus"
        return {name: value for name, value in os.environ.items() if name != "WAYLAND_DISPLAY"} | made

    def event(self, process, deadline):
        """The next event before the deadline; a fault when there is none or the program ends."""
        event = Event()
        while not self.x.XPending(self.display):
            if process.poll() is not None:
                raise Trial_Error(f"the program has ended with {process.returncode}")
            if time.monotonic() > deadline:
                raise Trial_Error("the program shows no window, or one that does not answer, in time")
            select.select([self.x.XConnectionNumber(self.display)], [], [], 0.05)
        self.x.XNextEvent(self.display, ctypes.byref(event))
        return event

    def attributes(self, window):
        attributes = Attributes()
        found = self.x.XGetWindowAttributes(self.display, window, ctypes.byref(attributes))
        return attributes if found and attributes.map_state == VIEWABLE else None

    def has_bare_pixel(self, left, top, width, height):
        image = self.x.XGetImage(self.display, self.root, left, top, width, height, ALL_PLANES, Z_PIXMAP)
        if not image:
            raise Trial_Error("the screen cannot be read")
        pixels = ctypes.string_at(image.contents.data, image.contents.line_bytes * height)
        self.x.XDestroyImage(image)
        bare = BARE.to_bytes(3, "little")
        at = pixels.find(bare)
        while at > 0 and at % 4:
            at = pixels.find(bare, at + 1)
        return at >= 0

    def is_painted(self, window):
        """Thin strips tell quickly that something is missing; that nothing is, only the whole window tells."""
        place = self.attributes(window)
        if not place:
            return False
        left, top = max(place.x, 0), max(place.y, 0)
        width = min(place.x + place.width, WIDTH) - left
        height = min(place.y + place.height, HEIGHT) - top
        for strip in range(STRIPS):
            if self.has_bare_pixel(left + strip * (width - 1) // (STRIPS - 1), top, 1, height):
                return False
        return not self.has_bare_pixel(left, top, width, height)

    def wait_for_window(self, process, deadline):
        """The program's first large window, as (window, time of mapping)."""
        while True:
            event = self.event(process, deadline)
            if event.type != MAP_NOTIFY or event.map.override_redirect:
                continue
            place = self.attributes(event.map.window)
            if place and place.width >= MAIN_WINDOW_WIDTH:
                return event.map.window, time.monotonic()

    def wait_for_paint(self, process, window, deadline):
        while not self.is_painted(window):
            if process.poll() is not None or time.monotonic() > deadline:
                raise Trial_Error("the window is not painted in time")
            time.sleep(POLL_S)
        return time.monotonic()

    def wait_for_answer(self, process, window, deadline):
        """Asks the window to answer, which its event loop does once it has nothing earlier to do."""
        self.send(window, self.ping, window)
        while True:
            event = self.event(process, deadline)
            if event.type == CLIENT_MESSAGE and event.client.data[0] == self.ping:
                return time.monotonic()

    def send(self, window, protocol, argument=0):
        event = Event()
        event.client.type, event.client.window, event.client.message = CLIENT_MESSAGE, window, self.protocols
        event.client.format = 32
        event.client.data[0], event.client.data[2] = protocol, argument
        self.x.XSendEvent(self.display, window, 0, 0, ctypes.byref(event))
        self.x.XSync(self.display, 0)

    def close(self, window):
        """As the window's close button does."""
        self.send(window, self.delete)

    def focus(self, window):
        """Without a window manager nobody else gives the keyboard to the window."""
        self.x.XSetInputFocus(self.display, window, REVERT_TO_PARENT, 0)
        self.x.XSync(self.display, 0)

    def title_and_class(self, window):
        title, hint = ctypes.c_char_p(), Class_Hint()
        self.x.XFetchName(self.display, window, ctypes.byref(title))
        self.x.XGetClassHint(self.display, window, ctypes.byref(hint))
        return tuple((text or b"").decode(errors="replace") for text in (title.value, hint.klass))

