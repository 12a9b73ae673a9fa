"""Short-lived pen ink on a transparent overlay over the Windows desktop.

Importing loads nothing, so a program for several systems may import this module on all of them. The first call loads
LumoraDLL.dll, from beside this file, from where load() says, or from where Windows looks for libraries.
"""
import ctypes
import enum
import sys
import threading
from ctypes import byref, c_bool, c_int32, c_ssize_t, c_size_t, c_uint8, c_uint32, c_uint64, c_void_p
from pathlib import Path
from typing import Iterable, NamedTuple, Optional

__all__ = ["BackEnd", "LumoraError", "Overlay", "Params", "Sample", "load"]


class LumoraError(Exception):
    """A value that the library must not get, a library that does not fit, an overlay that is gone."""


class BackEnd(enum.Enum):
    """What draws the ink. The numbers are those of the commands that the overlay window takes."""
    COMPOSITION = 40020
    DIRECT2D = 40021
    GDI = 40022


class Params(ctypes.Structure):
    """How ink looks and how long it lives, by the names of lumora/records.h. Lengths are pixels."""
    _fields_ = [
        ("reserved0", c_uint32),  # the host's own; comes back as it was set
        ("inkDecayTime", c_uint32),  # how long ink stays, in milliseconds
        ("inkColor", c_uint32),  # 0x00BBGGRR: red is 0x0000FF
        ("minBrushSize", c_uint32),  # the smallest width that pressure may give
        ("brushSize", c_uint32),  # the width of strokes; with usePressure that of full pressure
        ("maxPressure", c_uint32),  # the pressure that gives the full width
        ("line", c_bool),  # shows strokes
        ("outline", c_bool),  # a border around strokes, in white or black
        ("cursor", c_bool),  # a cross-hair marks a pen that hovers
        ("usePressure", c_bool),  # strokes are as wide as the pen presses
        ("useOffset", c_bool),  # shows strokes 50 pixels above the pen
        ("zebraMode", c_bool),  # stripes of ink and border colour
        ("colorPicker", c_bool),  # the next touch takes the screen's colour under the mouse cursor
        ("reserved31", c_uint8),  # the host's own
    ]


class PenData(ctypes.Structure):
    """A pen sample as the library reads it."""
    _fields_ = [
        ("time", c_uint32),
        ("aux1", c_uint32),
        ("x", c_int32),
        ("y", c_int32),
        ("aux4", c_uint32),
        ("pressure", c_int32),
        ("aux6", c_uint32),
        ("aux7", c_uint32),
        ("aux8", c_uint32),
    ]


class Sample(NamedTuple):
    """One pen sample in pixels of the screen. Pressure 1 up to maxPressure touches; 0 and less hovers, and ends a stroke."""
    x: int
    y: int
    pressure: int


class _Message(ctypes.Structure):
    _fields_ = [("window", c_void_p), ("number", c_uint32), ("wParam", c_size_t), ("lParam", c_ssize_t),
                ("time", c_uint32), ("x", c_int32), ("y", c_int32)]


_RANGES = {c_uint8: (0, 0xFF), c_uint32: (0, 0xFFFFFFFF), c_int32: (-0x80000000, 0x7FFFFFFF)}
_PARAM_TYPES = dict(Params._fields_)
_BRUSH_DATA = {"Nothing": 0, "InkColor": 1, "BrushSize": 2, "InkDecayTime": 1, "BrushParams": 3}

_WM_QUIT = 0x0012
_WM_COMMAND = 0x0111
_PM_REMOVE = 1
_GA_ROOT = 2
_GW_OWNER = 4


# ctypes itself would cut a number that does not fit, without a word.
def _checked(name, value, kind):
    if kind is c_bool:
        if not isinstance(value, bool):
            raise LumoraError(f"{name} must be True or False, not {value!r}")
        return value
    if not isinstance(value, int) or isinstance(value, bool):
        raise LumoraError(f"{name} must be a whole number, not {value!r}")
    low, high = _RANGES[kind]
    if not low <= value <= high:
        raise LumoraError(f"{name} is {value}; it must lie between {low} and {high}")
    return value


def _checked_changes(changes):
    for name, value in changes.items():
        if name not in _PARAM_TYPES:
            raise LumoraError(f"the parameters have no field {name!r}")
        _checked(name, value, _PARAM_TYPES[name])
    return changes


# The library goes by the time of receipt, but drops what has time 0.
def _pen_data(index, sample):
    try:
        x, y, pressure = sample
    except (TypeError, ValueError):
        raise LumoraError(f"sample {index} must be x, y and pressure, not {sample!r}") from None
    return PenData(time=1, x=_checked(f"x of sample {index}", x, c_int32),
                   y=_checked(f"y of sample {index}", y, c_int32),
                   pressure=_checked(f"pressure of sample {index}", pressure, c_int32))


# Only whole, right messages are made: the library trusts what it gets.
def _brush_data(kind, values):
    if kind not in _BRUSH_DATA:
        raise LumoraError(f"there is no brush data {kind!r}, but {', '.join(_BRUSH_DATA)}")
    if len(values) != _BRUSH_DATA[kind]:
        raise LumoraError(f"{kind} takes {_BRUSH_DATA[kind]} values, not {len(values)}")
    words = [4 * len(values)] + [_checked(kind, value, c_uint32) for value in values]
    return (kind + "\0").encode("utf-16-le") + b"".join(word.to_bytes(4, "little") for word in words)


class _Library:
    """LumoraDLL.dll and the functions of Windows that its host needs."""

    def __init__(self, file, load_library):
        try:
            self.lumora = load_library(file)
            self.user32 = load_library("user32.dll")
        except OSError as cause:
            raise LumoraError(f"{file} cannot be loaded: {cause}") from cause
        self.file = file
        self._declare()
        self._check_sizes()

    def _declare(self):
        message = ctypes.POINTER(_Message)
        for owner, name, result, *arguments in (
                (self.lumora, "LM_Create", c_void_p),
                (self.lumora, "LM_Destroy", None),
                (self.lumora, "LM_GetCopiedParams", None, ctypes.POINTER(Params)),
                (self.lumora, "LM_GetElmSize", None, ctypes.POINTER(c_uint64), ctypes.POINTER(c_uint64)),
                (self.lumora, "LM_GetWindowHandle", c_void_p),
                (self.lumora, "LM_InputPenDataArray", None, ctypes.POINTER(PenData), c_uint64),
                (self.lumora, "LM_SetData_from_App", None, c_void_p, c_uint64),
                (self.lumora, "LM_SetDebugLevel", None, c_uint32),
                (self.lumora, "LM_SetParams", None, ctypes.POINTER(Params)),
                (self.user32, "PeekMessageW", c_int32, message, c_void_p, c_uint32, c_uint32, c_uint32),
                (self.user32, "PostQuitMessage", None, c_int32),
                (self.user32, "TranslateMessage", c_int32, message),
                (self.user32, "DispatchMessageW", c_ssize_t, message),
                (self.user32, "IsDialogMessageW", c_int32, c_void_p, message),
                (self.user32, "GetAncestor", c_void_p, c_void_p, c_uint32),
                (self.user32, "GetWindow", c_void_p, c_void_p, c_uint32),
                (self.user32, "SendMessageW", c_ssize_t, c_void_p, c_uint32, c_size_t, c_ssize_t)):
            try:
                function = getattr(owner, name)
            except AttributeError as cause:
                raise LumoraError(f"{self.file} is another library: it has no {name}") from cause
            function.restype = result
            function.argtypes = arguments

    def _check_sizes(self):
        sizes = c_uint64(), c_uint64()
        self.lumora.LM_GetElmSize(*map(byref, sizes))
        found, own = [size.value for size in sizes], [ctypes.sizeof(Params), ctypes.sizeof(PenData)]
        if found != own:
            raise LumoraError(f"{self.file} has records of {found} bytes, this module of {own}: "
                              "they do not belong together")

    def take_quit(self):
        """The quit message that waits, which is taken out of the queue; None without one."""
        message = _Message()
        waits = self.user32.PeekMessageW(byref(message), None, _WM_QUIT, _WM_QUIT, _PM_REMOVE)
        return message if waits else None

    def without_quit(self, action):
        """Runs what destroys an overlay window and takes the quit message that this posts out of the queue, where it
        would end the host. One that waited before is the host's own and stays."""
        hosts_quit = self.take_quit()
        try:
            return action()
        finally:
            self.take_quit()
            if hosts_quit is not None:
                self.user32.PostQuitMessage(c_int32(hosts_quit.wParam).value)

    def is_for_dialog(self, overlay, message):
        """The settings dialog belongs to the overlay and gets its keys this way."""
        root = self.user32.GetAncestor(message.window, _GA_ROOT)
        return bool(root and overlay and self.user32.GetWindow(root, _GW_OWNER) == overlay and
                    self.user32.IsDialogMessageW(root, byref(message)))


_library: Optional[_Library] = None


def load(file=None):
    """Loads LumoraDLL.dll from another place. Comes before everything else."""
    global _library
    if sys.platform != "win32" or ctypes.sizeof(c_void_p) != 8:
        raise LumoraError(f"Lumora runs in 64-bit programs for Windows, not on {sys.platform}")
    beside = Path(__file__).with_name("LumoraDLL.dll")
    wanted = str(file) if file is not None else str(beside) if beside.exists() else "LumoraDLL.dll"
    if _library is None:
        _library = _Library(wanted, ctypes.WinDLL)
    elif _library.file != wanted:
        raise LumoraError(f"{_library.file} is loaded already; a process has one")


def _loaded():
    if _library is None:
        load()
    return _library


class Overlay:
    """The overlay window and its ink. A process has one: a new one takes the place of the one before. All calls come from
    the thread that made it. It is a context manager, which destroys it at the end."""

    _current: Optional["Overlay"] = None

    def __init__(self, back_end: Optional[BackEnd] = None):
        """Without a back-end the library's own choice holds: at first COMPOSITION, then what was chosen last."""
        if back_end is not None:
            self._check_back_end(back_end)
        self._library = _loaded()
        self._thread = threading.get_ident()
        if Overlay._current is not None and Overlay._current._thread != self._thread:
            raise LumoraError("the overlay of another thread still lives")
        self._create()
        if back_end is not None:
            self._choose(back_end)

    @staticmethod
    def set_debug_level(level: int) -> None:
        """How much the library writes to the debugger: 0 nothing, 1 basic, 2 normal, 3 detailed, 255 all. Before an overlay
        is made, any level but 0 also gives it its tray menu."""
        _loaded().lumora.LM_SetDebugLevel(_checked("the debug level", level, c_uint32))

    @property
    def window_handle(self) -> Optional[int]:
        """The window's HWND; None when it has been lost. It changes with the back-end."""
        return self._living().LM_GetWindowHandle()

    @property
    def params(self) -> Params:
        """A copy, with what a person has changed in the settings dialog until now."""
        self.input_samples([])  # brings the dialog's changes in
        copied = Params()
        self._living().LM_GetCopiedParams(byref(copied))
        return copied

    def set_params(self, **changes) -> None:
        """Changes the fields that are named."""
        _checked_changes(changes)
        changed = self.params
        for name, value in changes.items():
            setattr(changed, name, value)
        self._living().LM_SetParams(byref(changed))

    def input_samples(self, samples: Iterable[Sample]) -> None:
        """Draws the samples, oldest first, with the next message that the overlay gets."""
        data = [_pen_data(index, sample) for index, sample in enumerate(samples)]
        # The library ignores a null array, but not a count of 0.
        array = (PenData * max(len(data), 1))(*data)
        self._living().LM_InputPenDataArray(array, len(data))

    def send_brush_data(self, kind: str, *values: int) -> None:
        """Changes some parameters by a brush-data message: "Nothing", "InkColor" colour, "BrushSize" smallest full,
        "InkDecayTime" milliseconds, "BrushParams" colour smallest full. They show with the next repaint."""
        message = _brush_data(kind, values)
        writable = ctypes.create_string_buffer(message, len(message))
        self._living().LM_SetData_from_App(writable, len(message))

    def set_back_end(self, back_end: BackEnd) -> None:
        """Changes the back-end at once; the overlay gets a new window, the ink on the screen goes."""
        self._check_back_end(back_end)
        kept = self.params
        self._choose(back_end)
        self._living().LM_SetParams(byref(kept))

    def pump(self) -> bool:
        """Dispatches the messages that wait; False when a quit message was among them. Not beside a user interface's main
        loop (tkinter, Qt), which does so."""
        overlay, user32, message = self.window_handle, self._library.user32, _Message()
        while user32.PeekMessageW(byref(message), None, 0, 0, _PM_REMOVE):
            if message.number == _WM_QUIT:
                return False
            if not self._library.is_for_dialog(overlay, message):
                user32.TranslateMessage(byref(message))
                user32.DispatchMessageW(byref(message))
        return True

    def destroy(self) -> None:
        """Takes the overlay away; does nothing a second time."""
        if Overlay._current is self:
            self._library.without_quit(self._living().LM_Destroy)
            Overlay._current = None

    def __enter__(self) -> "Overlay":
        return self

    def __exit__(self, *_) -> None:
        self.destroy()

    @staticmethod
    def _check_back_end(back_end):
        if not isinstance(back_end, BackEnd):
            raise LumoraError(f"there is no back-end {back_end!r}, but {', '.join(map(str, BackEnd))}")

    def _living(self):
        if Overlay._current is not self:
            raise LumoraError("this overlay has been destroyed, or another one has taken its place")
        if threading.get_ident() != self._thread:
            raise LumoraError("an overlay is called by the thread that made it")
        return self._library.lumora

    # The window is null where it could not be made; there is an instance nevertheless, and it is ended at once.
    def _create(self):
        Overlay._current = None
        if self._library.without_quit(self._library.lumora.LM_Create) is None:
            self._library.lumora.LM_Destroy()
            raise LumoraError("the overlay window could not be made")
        Overlay._current = self

    # The choice outlives the instance; the next one begins with it. Left to itself the library would follow it at the next
    # input, and leave the old window behind.
    def _choose(self, back_end):
        self._library.user32.SendMessageW(self.window_handle, _WM_COMMAND, back_end.value, 0)
        self._library.without_quit(self._library.lumora.LM_Destroy)
        self._create()
