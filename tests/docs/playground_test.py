#!/usr/bin/python3
"""The playground in headless Chromium: playground_test.py PAGE.html [unittest's arguments]

Time is stopped or goes on by steps of 10 ms, so that no test depends on how fast the machine is.
"""
import pathlib
import re
import sys
import unittest

from browser import EMPTY, Browser

RED = (200, 20, 30, 255)
WHITE = (255, 255, 255, 255)
NONE = (0, 0, 0, 0)
FIELDS = {
    "reserved0": 0, "inkDecayTime": 100, "inkColor": 0x202020, "minBrushSize": 1, "brushSize": 10, "maxPressure": 32767,
    "line": 1, "outline": 0, "cursor": 1, "usePressure": 1, "useOffset": 0, "zebraMode": 0, "colorPicker": 0, "reserved31": 0,
}
PAGE = pathlib.Path()


class Playground(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.browser = Browser(PAGE.as_uri())

    @classmethod
    def tearDownClass(cls):
        cls.browser.close()

    # An empty stage, stopped time, red ink that lives for a second, strokes 40 pixels wide.
    def setUp(self):
        page = self.browser
        if page.text("#play").startswith("Stop"):
            page.click("#play")
        page.click("#start")
        page.click("#path:checked" if page.run("return document.getElementById('path').checked") else "h1")
        page.set_field("inkDecayTime", 1)
        page.click("input[name=speed][value='0']")
        for _ in range(2):
            page.click("#step")
        page.next_frame()
        self.assertTrue(page.is_empty())
        page.set_field("inkDecayTime", 1000)
        page.set_field("brushSize", 40)

    def tearDown(self):
        self.assertEqual(self.browser.messages(), [])

    def steps(self, count):
        for _ in range(count):
            self.browser.click("#step")
        self.browser.next_frame()

    def test_asks_for_nothing_outside(self):
        text = PAGE.read_text()
        self.assertNotRegex(text, r"https?://")
        self.assertEqual(self.browser.run("return performance.getEntriesByType('resource').length"), 0)
        self.assertLess(len(text.encode()), 300_000)

    def test_a_segment_is_as_wide_as_its_later_end_presses(self):
        self.browser.stroke([(100, 200, 1.0), (300, 200, 0.5), (500, 200, 1.0)])
        for x, half in ((200, 10), (400, 20)):
            for side in (-1, 1):
                self.assertEqual(self.browser.ink(x, 200 + side * (half - 2)), RED, (x, half, side))
                self.assertEqual(self.browser.ink(x, 200 + side * (half + 2)), NONE, (x, half, side))
        self.assertEqual(self.browser.text("#code").count("params."), 3)

    def test_width_may_ignore_pressure_and_has_a_least_one(self):
        page = self.browser
        page.set_field("minBrushSize", 20)
        page.stroke([(100, 200, 1.0), (300, 200, 0.1)])
        self.assertEqual((page.ink(200, 208), page.ink(200, 212)), (RED, NONE))
        page.set_field("usePressure", 0)
        page.next_frame()
        self.assertEqual((page.ink(200, 218), page.ink(200, 222)), (RED, NONE))
        page.set_field("usePressure", 1)
        page.set_field("maxPressure", 3277)
        page.next_frame()
        self.assertEqual((page.ink(200, 218), page.ink(200, 222)), (RED, NONE))

    def test_strokes_are_not_joined(self):
        self.browser.stroke([(100, 100, 1.0), (200, 100, 1.0)])
        self.browser.stroke([(400, 100, 1.0), (500, 100, 1.0)])
        self.assertEqual([self.browser.ink(x, 100) for x in (150, 300, 450)], [RED, NONE, RED])

    def test_ink_lives_for_its_life(self):
        page = self.browser
        page.stroke([(100, 200, 1.0), (300, 200, 1.0)])
        self.steps(50)
        page.stroke([(400, 200, 1.0), (600, 200, 1.0)])
        self.steps(49)
        self.assertEqual((page.ink(200, 200), page.ink(500, 200)), (RED, RED))
        self.steps(1)
        self.assertEqual((page.ink(200, 200), page.ink(500, 200)), (NONE, RED))
        self.steps(49)
        self.assertEqual(page.ink(500, 200), RED)
        self.steps(1)
        self.assertTrue(page.is_empty())

    def test_nothing_is_left_at_full_speed(self):
        page = self.browser
        page.stroke([(100, 200, 1.0), (300, 200, 1.0)])
        self.assertFalse(page.is_empty())
        page.click("input[name=speed][value='1']")
        page.wait(EMPTY)

    def test_zebra_changes_with_age(self):
        page = self.browser
        page.set_field("zebraMode", 1)
        page.stroke([(100, 200, 1.0), (300, 200, 1.0)])
        colours = []
        for _ in range(4):
            colours.append(page.ink(200, 200))
            self.steps(1)
        self.assertEqual(colours, [RED, WHITE, RED, WHITE])

    def test_outline_lies_around_the_ink(self):
        page = self.browser
        page.set_field("outline", 1)
        page.set_field("brushSize", 20)
        page.stroke([(100, 200, 1.0), (300, 200, 1.0)])
        self.assertEqual([page.ink(200, y) for y in (200, 190, 210, 188, 212)], [RED, RED, WHITE, NONE, NONE])
        self.assertEqual(page.ink(200, 189), WHITE)

    def test_hollow_strokes(self):
        page = self.browser
        page.set_field("outline", 1)
        page.set_field("line", 0)
        page.stroke([(100, 100, 1.0), (300, 300, 1.0)])
        self.assertEqual(page.ink(200, 200), NONE)
        self.assertEqual(page.ink(213, 186), RED)  # 19 pixels off the middle: a core of 36 in ink of 40
        page.click("#path")
        page.next_frame()
        red, green, blue, opacity = page.ink(200, 200)
        self.assertEqual(opacity, 128)
        self.assertTrue(abs(red - 200) <= 2 and abs(green - 20) <= 2 and abs(blue - 30) <= 2, (red, green, blue))

    def test_strokes_may_lie_above_the_pen(self):
        self.browser.set_field("useOffset", 1)
        self.browser.stroke([(100, 200, 1.0), (300, 200, 1.0)])
        self.assertEqual((self.browser.ink(200, 150), self.browser.ink(200, 200)), (RED, NONE))

    def test_a_hovering_pen_has_a_cross_hair(self):
        page = self.browser
        page.pointer("Moved", 200, 200)
        page.next_frame()
        self.assertEqual((page.ink(200, 197), page.ink(203, 200), page.ink(200, 207)), (RED, RED, WHITE))
        self.assertEqual(page.ink(210, 210), NONE)
        page.set_field("cursor", 0)
        page.next_frame()
        self.assertTrue(page.is_empty())

    def test_a_touch_picks_the_colour_below(self):
        page = self.browser
        page.set_field("colorPicker", 1)
        place = page.run(
            """const canvas = document.getElementById('scene');
            const pixels = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height).data;
            for (let i = 0; i < pixels.length; i += 4) { // the blue square: #2671c7
                if (pixels[i] === 0x26 && pixels[i + 1] === 0x71 && pixels[i + 2] === 0xc7) {
                    return [i / 4 % canvas.width + 5, Math.floor(i / 4 / canvas.width) + 5];
                }
            }""")
        page.pointer("Moved", *place)
        page.next_frame()
        self.assertEqual(page.ink(place[0] - 32, place[1] - 32), (0x26, 0x71, 0xC7, 255))
        page.pointer("Pressed", *place, 1.0)
        page.next_frame()  # which picks; a move before it would pick from there
        page.pointer("Moved", place[0] + 60, place[1], 1.0)
        page.pointer("Released", place[0] + 60, place[1])
        page.next_frame()
        self.assertIn("params.inkColor = 0x00C77126;", page.text("#code"))
        self.assertNotIn("colorPicker", page.text("#code"))
        self.assertEqual(page.ink(place[0] + 30, place[1]), (0x26, 0x71, 0xC7, 255))

    def test_a_mouse_presses_with_half(self):
        self.browser.stroke([(100, 200, 0.5), (300, 200, 0.5)], pen="mouse")
        self.assertEqual((self.browser.ink(200, 208), self.browser.ink(200, 212)), (RED, NONE))

    def test_the_arrows_write_with_shift(self):
        page = self.browser
        page.pointer("Moved", 200, 200)
        page.run("document.getElementById('ink').focus()")
        for kind in ("rawKeyDown", "rawKeyDown", "keyUp"):
            page.send("Input.dispatchKeyEvent", {"type": kind, "key": "ArrowRight", "code": "ArrowRight", "modifiers": 8})
        page.send("Input.dispatchKeyEvent", {"type": "keyUp", "key": "Shift", "code": "ShiftLeft"})
        page.next_frame()
        self.assertEqual((page.ink(212, 200), page.ink(240, 200)), (RED, NONE))

    def test_every_field_has_its_control_with_the_default(self):
        page = self.browser
        page.click("#defaults")
        self.assertEqual(page.text("#code").count("params."), 0)
        for name, default in FIELDS.items():
            shown = f"default 0x{default:08X}" if name == "inkColor" else f"default {default}"
            self.assertEqual(page.text(f"#field-{name} ~ .default, label[for=field-{name}] + .default"), shown)
            value = 1 - default if default in (0, 1) and name != "minBrushSize" else 7
            page.set_field(name, "#112233" if name == "inkColor" else value)
            value = "0x00332211" if name == "inkColor" else value
            self.assertEqual(re.findall(r"params\.(.*);", page.text("#code")), [f"{name} = {value}"])
            page.click(f"label[for=field-{name}] + .default")
        self.assertEqual(page.text("#code").count("params."), 0)

    def test_the_code_is_copied(self):
        self.browser.driver.find_element("id", "copy").click()
        self.browser.wait("return document.getElementById('copied').textContent === 'Copied.'")

    def test_the_recording_plays(self):
        page = self.browser
        page.click("input[name=speed][value='1']")
        page.click("#play")
        page.wait("return Number(document.getElementById('segments').textContent) > 20")
        page.wait("return Number(document.getElementById('rate').textContent) > 0")
        page.click("#play")
        page.wait(EMPTY)


class Phone(unittest.TestCase):
    def test_a_finger_writes(self):
        page = Browser(PAGE.as_uri(), width=390, height=844, scale=2, dark=True)
        self.addCleanup(page.close)
        page.click("#play")
        page.set_field("inkDecayTime", 1)
        page.wait(EMPTY)
        page.click("input[name=speed][value='0']")
        page.set_field("inkDecayTime", 1000)
        page.set_field("brushSize", 40)
        page.send("Emulation.setTouchEmulationEnabled", {"enabled": True})
        box = page.run("const box = document.getElementById('ink').getBoundingClientRect(); return [box.left, box.top]")
        for kind, x in (("Start", 100), ("Move", 120), ("Move", 250), ("End", None)):
            points = [] if x is None else [{"x": box[0] + x, "y": box[1] + 200, "force": 1.0}]
            page.send("Input.dispatchTouchEvent", {"type": f"touch{kind}", "touchPoints": points})
        page.next_frame()
        self.assertEqual((page.ink(200, 200), page.ink(200, 218), page.ink(200, 222)), (RED, RED, NONE))
        self.assertEqual(page.run("return document.documentElement.scrollWidth"), 390)
        self.assertEqual(page.messages(), [])


if __name__ == "__main__":
    PAGE = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
