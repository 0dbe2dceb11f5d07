"""The colour of an area of the display, without a picture of all of it: asked many times a minute beside a program that
is measured.
"""

import ctypes
import ctypes.util
import subprocess

ALL_PLANES, AS_PIXELS = 0xFFFFFFFF, 2


class Image(ctypes.Structure):
    _fields_ = [("width", ctypes.c_int), ("height", ctypes.c_int), ("xoffset", ctypes.c_int), ("format", ctypes.c_int),
                ("data", ctypes.POINTER(ctypes.c_ubyte)), ("byte_order", ctypes.c_int), ("bitmap_unit", ctypes.c_int),
                ("bitmap_bit_order", ctypes.c_int), ("bitmap_pad", ctypes.c_int), ("depth", ctypes.c_int),
                ("bytes_per_line", ctypes.c_int)]


class Pixels:
    def __init__(self):
        self.x11 = ctypes.CDLL(ctypes.util.find_library("X11"))
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
        self.x11.XGetImage.restype = ctypes.POINTER(Image)
        self.x11.XGetImage.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.c_uint,
                                       ctypes.c_uint, ctypes.c_ulong, ctypes.c_int]
        self.x11.XDestroyImage.argtypes = [ctypes.POINTER(Image)]
        self.display = self.x11.XOpenDisplay(None)
        if not self.display:
            raise RuntimeError("no display to look at")
        self.root = self.x11.XDefaultRootWindow(self.display)
        self.width = self.x11.XDisplayWidth(ctypes.c_void_p(self.display), 0)
        self.height = self.x11.XDisplayHeight(ctypes.c_void_p(self.display), 0)

    def content(self, x, y, width, height):
        """Blue, green, red and a byte of nothing for each pixel; a line has no gap at 32 bits a pixel."""
        image = self.x11.XGetImage(self.display, self.root, x, y, width, height, ALL_PLANES, AS_PIXELS)
        if not image:
            return b""
        content = ctypes.string_at(image.contents.data, image.contents.bytes_per_line * height)
        self.x11.XDestroyImage(image)
        return content

    def save(self, path):
        """A picture of all of it. Other ways to one hold the display for a quarter of a second."""
        subprocess.run(["convert", "-size", f"{self.width}x{self.height}", "-depth", "8", "bgra:-", "-alpha", "off", str(path)],
                       input=self.content(0, 0, self.width, self.height), check=False)

    def green(self, area):
        """How many pixels in (x, y, width, height) have the colour of the current song."""
        x, y = max(0, area[0]), max(0, area[1])
        width, height = min(area[0] + area[2], self.width) - x, min(area[1] + area[3], self.height) - y
        if width <= 0 or height <= 0:
            return 0
        content = self.content(x, y, width, height)
        return sum(1 for blue, green, red in zip(content[0::4], content[1::4], content[2::4])
                   if green == 255 and blue == 0 and red == 0)
