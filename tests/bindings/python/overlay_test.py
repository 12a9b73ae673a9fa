"""What the module calls, and what it refuses before it calls anything. STAND_IN names the library that writes it down."""
import ctypes
import os
import threading
import unittest
from unittest import mock

import lumora
from lumora import BackEnd, LumoraError, Overlay, Sample

STAND_IN = ctypes.CDLL(os.environ["STAND_IN"])
STAND_IN.StandInTakeLog.restype = ctypes.c_char_p
STAND_IN.StandInSetPenDataSize.argtypes = [ctypes.c_uint64]
NO_QUIT = -1


def take_log():
    return STAND_IN.StandInTakeLog().decode().splitlines()


def load_stand_in(file="LumoraDLL.dll"):
    return lumora._Library(file, lambda _: ctypes.CDLL(os.environ["STAND_IN"]))


class OverlayTest(unittest.TestCase):
    def setUp(self):
        patch = mock.patch.object(lumora, "_library", load_stand_in())
        patch.start()
        self.addCleanup(patch.stop)
        self.overlay = Overlay()
        self.addCleanup(self.end)
        take_log()

    def end(self):
        if Overlay._current is not None:
            Overlay._current.destroy()
        STAND_IN.StandInQuit(0)
        lumora._library.take_quit()

    def test_creation_and_end_leave_no_quit_message(self):
        second = Overlay()
        self.assertEqual(STAND_IN.StandInQuitWaits(), NO_QUIT)
        self.overlay.destroy()
        second.destroy()
        second.destroy()
        self.assertEqual(take_log(), ["LM_Create", "LM_Destroy"])
        self.assertEqual(STAND_IN.StandInQuitWaits(), NO_QUIT)

    def test_the_hosts_own_quit_message_stays(self):
        STAND_IN.StandInQuit(7)
        self.overlay.destroy()
        self.assertEqual(STAND_IN.StandInQuitWaits(), 7)

    def test_a_with_statement_destroys(self):
        with Overlay():
            take_log()
        self.assertEqual(take_log(), ["LM_Destroy"])

    def test_an_overlay_that_is_gone_refuses(self):
        Overlay()
        for call in (lambda: self.overlay.params, lambda: self.overlay.input_samples([]), self.overlay.pump):
            self.assertRaises(LumoraError, call)

    def test_another_thread_is_refused(self):
        seen = []

        def call_from_there():
            for call in (lambda: self.overlay.input_samples([]), self.overlay.destroy, Overlay):
                try:
                    call()
                except LumoraError as error:
                    seen.append(error)

        thread = threading.Thread(target=call_from_there)
        thread.start()
        thread.join()
        self.assertEqual(len(seen), 3)
        self.assertEqual(take_log(), [])
        self.overlay.input_samples([])

    def test_a_window_that_cannot_be_made_is_an_error(self):
        STAND_IN.StandInFailCreation(1)
        self.assertRaises(LumoraError, Overlay)
        STAND_IN.StandInFailCreation(0)
        self.assertEqual(take_log(), ["LM_Create", "LM_Destroy"])
        self.assertEqual(STAND_IN.StandInQuitWaits(), NO_QUIT)

    def test_a_back_end_is_chosen_by_a_second_creation(self):
        Overlay(BackEnd.GDI)
        self.assertEqual(take_log(), ["LM_Create", "SendMessageW to the overlay 0x111 40022 0", "LM_Destroy", "LM_Create"])
        self.assertEqual(STAND_IN.StandInQuitWaits(), NO_QUIT)

    def test_a_change_of_the_back_end_keeps_the_parameters(self):
        self.overlay.set_params(brushSize=33)
        before = self.overlay.window_handle
        kept = take_log()[-1]
        self.overlay.set_back_end(BackEnd.DIRECT2D)
        self.assertEqual(take_log(), [
            "LM_InputPenDataArray 0 of an array", "LM_GetCopiedParams", "SendMessageW to the overlay 0x111 40021 0",
            "LM_Destroy", "LM_Create", kept])
        self.assertNotEqual(self.overlay.window_handle, before)

    def test_samples_cross_as_they_are(self):
        self.overlay.input_samples([Sample(1, -2, 3), (2 ** 31 - 1, -2 ** 31, 0)])
        self.assertEqual(take_log(),
                         ["LM_InputPenDataArray 2 of an array, at (1, -2) 3, at (2147483647, -2147483648) 0"])

    def test_every_parameter_has_its_place(self):
        self.overlay.set_params(
            reserved0=0x11223344, inkDecayTime=0x55667788, inkColor=0x00AABBCC, minBrushSize=1, brushSize=2,
            maxPressure=3, line=True, outline=False, cursor=True, usePressure=True, useOffset=False, zebraMode=True,
            colorPicker=False, reserved31=0xA5)
        self.assertEqual(take_log()[-1], "LM_SetParams 44 33 22 11 88 77 66 55 cc bb aa 00 01 00 00 00 02 00 00 00 "
                                         "03 00 00 00 01 00 01 01 00 01 00 a5")
        self.assertEqual(self.overlay.params.inkDecayTime, 0x55667788)
        self.assertIs(self.overlay.params.zebraMode, True)

    def test_parameters_that_are_not_named_stay_and_those_of_the_dialog_come_first(self):
        self.overlay.set_params(brushSize=44)
        take_log()
        self.overlay.set_params(outline=True)
        self.assertEqual([line.split()[0] for line in take_log()],
                         ["LM_InputPenDataArray", "LM_GetCopiedParams", "LM_SetParams"])
        self.assertEqual(self.overlay.params.brushSize, 44)

    def test_brush_data_is_made_byte_by_byte(self):
        self.overlay.send_brush_data("BrushSize", 1, 30)
        self.assertEqual(take_log(), [
            "LM_SetData_from_App 42 00 72 00 75 00 73 00 68 00 53 00 69 00 7a 00 65 00 00 00 08 00 00 00 "
            "01 00 00 00 1e 00 00 00"])

    def test_pumping_dispatches_and_tells_of_a_quit_message(self):
        STAND_IN.StandInPost()
        self.assertTrue(self.overlay.pump())
        self.assertEqual(take_log(), ["DispatchMessageW 0x401"])
        STAND_IN.StandInQuit(0)
        self.assertFalse(self.overlay.pump())
        self.assertEqual(take_log(), [])

    def test_wrong_values_never_cross(self):
        for call in (
                lambda: self.overlay.input_samples([(1, 2)]),
                lambda: self.overlay.input_samples([(1, 2, 3), None]),
                lambda: self.overlay.input_samples([("1", 2, 3)]),
                lambda: self.overlay.input_samples([(1.5, 2, 3)]),
                lambda: self.overlay.input_samples([(1, True, 3)]),
                lambda: self.overlay.input_samples([(2 ** 31, 2, 3)]),
                lambda: self.overlay.input_samples([(1, -2 ** 31 - 1, 3)]),
                lambda: self.overlay.set_params(brushSize=-1),
                lambda: self.overlay.set_params(inkColor=2 ** 32),
                lambda: self.overlay.set_params(reserved31=256),
                lambda: self.overlay.set_params(outline=1),
                lambda: self.overlay.set_params(brushsize=1),
                lambda: self.overlay.send_brush_data("Inkcolor", 1),
                lambda: self.overlay.send_brush_data("BrushSize", 1),
                lambda: self.overlay.send_brush_data("InkColor", -1),
                lambda: self.overlay.set_back_end("gdi"),
                lambda: Overlay("gdi"),
                lambda: Overlay.set_debug_level("1")):
            self.assertRaises(LumoraError, call)
        self.assertEqual(take_log(), [])

    def test_a_debug_level_is_passed_on(self):
        Overlay.set_debug_level(255)
        self.assertEqual(take_log(), ["LM_SetDebugLevel 255"])


class LibraryTest(unittest.TestCase):
    def test_other_record_sizes_are_refused(self):
        STAND_IN.StandInSetPenDataSize(40)
        self.addCleanup(STAND_IN.StandInSetPenDataSize, 36)
        self.assertRaisesRegex(LumoraError, r"\[32, 40\].*\[32, 36\]", load_stand_in)

    def test_another_library_is_refused(self):
        self.assertRaisesRegex(LumoraError, "no LM_Create", lambda: lumora._Library("libc", lambda _: ctypes.CDLL(None)))

    def test_a_missing_library_is_refused(self):
        self.assertRaisesRegex(LumoraError, "cannot be loaded", lambda: lumora._Library("missing.dll", ctypes.CDLL))

    def test_another_system_is_refused(self):
        self.assertRaisesRegex(LumoraError, "for Windows", Overlay)


if __name__ == "__main__":
    unittest.main()
