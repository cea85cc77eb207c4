"""Input and output through the X server and the window manager."""

import contextlib
import ctypes
import re
import subprocess

# Size of the screen of scripts/with-display.
SIZE = (1280, 800)



class _Image(ctypes.Structure):
    """The first members of Xlib's XImage."""
    _fields_ = [(name, ctypes.c_int) for name in ("width", "height", "xoffset", "format")] + [("data", ctypes.c_void_p)]


_x11 = ctypes.CDLL("libX11.so.6")
_x11.XOpenDisplay.restype = ctypes.c_void_p
_x11.XDefaultRootWindow.restype = ctypes.c_ulong
_x11.XGetImage.restype = ctypes.POINTER(_Image)


def xdotool(*arguments):
    """Runs xdotool and returns its output, or an empty text if it fails."""
    result = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True)
    return result.stdout.strip() if result.returncode == 0 else ""


def press_key(combination):
    subprocess.run(["xdotool", "key", "--clearmodifiers", combination], check=True)


def click():
    subprocess.run(["xdotool", "click", "1"], check=True)


def geometry(window):
    """Returns left, top, width and height of a window; None if it no longer exists."""
    text = subprocess.run(["xwininfo", "-id", str(window)], capture_output=True, text=True).stdout
    numbers = [re.search(rf"{name}: +(-?\d+)", text)
               for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
    return tuple(int(number[1]) for number in numbers) if all(numbers) else None


def frame_extents(window):
    """Returns the widths of the window's frame, left, right, top and bottom; None before they are known."""
    text = subprocess.run(["xprop", "-id", str(window), "-notype", "_NET_FRAME_EXTENTS"], capture_output=True,
                          text=True).stdout
    sides = re.search(r"= (\d+), (\d+), (\d+), (\d+)", text)
    return sides and tuple(map(int, sides.groups()))


def windows_of(pid):
    """Returns the numbers of the visible windows of a process."""
    return [int(number) for number in xdotool("search", "--onlyvisible", "--pid", pid).split()]


def active_window():
    """Returns the number of the active window; None if there is none."""
    number = xdotool("getactivewindow")
    return int(number) if number else None


@contextlib.contextmanager
def _display():
    """Opens a connection and yields it with the root window, for queries that no command line tool offers."""
    display = ctypes.c_void_p(_x11.XOpenDisplay(None))
    try:
        yield display, _x11.XDefaultRootWindow(display)
    finally:
        _x11.XCloseDisplay(display)


def keyboard_is_grabbed():
    """Returns whether a program has grabbed the keyboard."""
    with _display() as (display, root):
        # The server refuses a second grab. A granted one ends with the connection.
        return _x11.XGrabKeyboard(display, ctypes.c_ulong(root), 0, 1, 1, ctypes.c_ulong(0)) != 0


def pixels(x=0, y=0, width=SIZE[0], height=SIZE[1]):
    """Returns the pixels of a part of the screen, row by row, as tuples of red, green and blue."""
    all_planes, one_value_a_pixel = ctypes.c_ulong(-1), 2
    with _display() as (display, root):
        image = _x11.XGetImage(display, ctypes.c_ulong(root), x, y, width, height, all_planes, one_value_a_pixel)
        data = ctypes.string_at(image.contents.data, 4 * width * height)
        _x11.XDestroyImage(image)
    return list(zip(data[2::4], data[1::4], data[0::4]))


def window_below_pointer():
    """Returns the number of the innermost window below the pointer."""
    with _display() as (display, child):
        ignored = ctypes.byref((ctypes.c_long * 8)())
        while child:
            window, found = child, ctypes.c_ulong()
            _x11.XQueryPointer(display, ctypes.c_ulong(window), ignored, ctypes.byref(found), *[ignored] * 5)
            child = found.value
        return window
