"""What stands on an X display: waits for a window that has been painted. Speaks to libX11 itself."""

import ctypes
import time

MAP_NOTIFY = 19
SUBSTRUCTURE_NOTIFY = 1 << 19
ALL_PLANES = (1 << 64) - 1
Z_PIXMAP = 2
VIEWABLE = 2
SMALLEST = 50
ROWS = 15
PAINTED_COLOURS = 2
MILLISECOND = 0.001


class Image(ctypes.Structure):
    """The head of an XImage."""
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int),
                ("format", ctypes.c_int), ("data", ctypes.c_void_p), ("byte_order", ctypes.c_int),
                ("bitmap_unit", ctypes.c_int), ("bitmap_bit_order", ctypes.c_int), ("bitmap_pad", ctypes.c_int),
                ("depth", ctypes.c_int), ("bytes_per_line", ctypes.c_int)]


class Attributes(ctypes.Structure):
    """An XWindowAttributes."""
    _fields_ = [("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int), ("height", ctypes.c_int),
                ("border", ctypes.c_int), ("depth", ctypes.c_int), ("visual", ctypes.c_void_p),
                ("root", ctypes.c_ulong), ("kind", ctypes.c_int), ("bit_gravity", ctypes.c_int),
                ("win_gravity", ctypes.c_int), ("backing_store", ctypes.c_int), ("planes", ctypes.c_ulong),
                ("pixel", ctypes.c_ulong), ("save_under", ctypes.c_int), ("colormap", ctypes.c_ulong),
                ("installed", ctypes.c_int), ("map_state", ctypes.c_int), ("rest", ctypes.c_long * 8)]


class Screen:
    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XGetImage.restype = ctypes.POINTER(Image)
        self.x.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.c_uint,
                                     ctypes.c_uint, ctypes.c_ulong, ctypes.c_int]
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))
        if not self.display:
            raise SystemExit("no display")
        # A window may go while it is looked at.
        handler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
        self.ignore = handler(lambda _display, _error: 0)
        self.x.XSetErrorHandler(self.ignore)
        self.root = self.x.XDefaultRootWindow(self.display)
        self.x.XSelectInput(self.display, ctypes.c_ulong(self.root), ctypes.c_long(SUBSTRUCTURE_NOTIFY))

    def mapped(self):
        """The visible windows of some size, with their sizes."""
        root, parent = ctypes.c_ulong(), ctypes.c_ulong()
        children, count = ctypes.POINTER(ctypes.c_ulong)(), ctypes.c_uint()
        self.x.XQueryTree(self.display, ctypes.c_ulong(self.root), ctypes.byref(root), ctypes.byref(parent),
                          ctypes.byref(children), ctypes.byref(count))
        found = []
        for window in children[:count.value]:
            place = Attributes()
            there = self.x.XGetWindowAttributes(self.display, ctypes.c_ulong(window), ctypes.byref(place))
            if there and place.map_state == VIEWABLE and min(place.width, place.height) >= SMALLEST:
                found.append((window, place.width, place.height))
        if count.value:
            self.x.XFree(children)
        return found

    def colours(self, window, width, height):
        """How many colours some rows of a window show."""
        seen = set()
        for row in range(1, ROWS + 1):
            image = self.x.XGetImage(self.display, window, 0, height * row // (ROWS + 1), width, 1, ALL_PLANES,
                                     Z_PIXMAP)
            if image:
                seen.update(memoryview(ctypes.string_at(image.contents.data, width * 4)).cast("I"))
                self.x.XDestroyImage(image)
        return len(seen)

    def forget_windows(self):
        """What was mapped up to now does not count."""
        self.x.XSync(self.display, 1)

    def wait_for_painted(self, until):
        """Whether a window was mapped and painted in time. Looks only once one was mapped, so as not to disturb."""
        event = ctypes.create_string_buffer(256)
        appeared = False
        while time.perf_counter() < until:
            while self.x.XPending(self.display):
                self.x.XNextEvent(self.display, event)
                appeared = appeared or ctypes.c_int.from_buffer(event).value == MAP_NOTIFY
            if appeared and any(self.colours(*window) >= PAINTED_COLOURS for window in self.mapped()):
                return True
            time.sleep(MILLISECOND)
        return False

    def wait_for_none(self):
        while self.mapped():
            time.sleep(MILLISECOND)
