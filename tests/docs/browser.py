"""A headless Chromium with the playground open, its pointer events and what its canvas shows."""
import time

from selenium import webdriver
from selenium.webdriver.chrome.service import Service

PATIENCE = 30  # seconds until something that has to come is missed; nothing is measured by it


class Browser:
    def __init__(self, url, width=1400, height=900, scale=1, dark=False):
        options = webdriver.ChromeOptions()
        for argument in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage"):
            options.add_argument(argument)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        metrics = {"width": width, "height": height, "deviceScaleFactor": scale, "mobile": scale > 1}
        self.send("Emulation.setDeviceMetricsOverride", metrics)
        if dark:
            features = [{"name": "prefers-color-scheme", "value": "dark"}]
            self.send("Emulation.setEmulatedMedia", {"features": features})
        self.driver.set_script_timeout(PATIENCE)
        self.driver.get(url)
        self.wait("return document.documentElement.dataset.ready === 'true'")

    def close(self):
        self.driver.quit()

    def send(self, command, parameters):
        return self.driver.execute_cdp_cmd(command, parameters)

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def wait(self, script, *arguments):
        end = time.monotonic() + PATIENCE
        while not self.run(script, *arguments):
            if time.monotonic() > end:
                raise AssertionError(f"has not come: {script} {arguments}")
            time.sleep(0.02)

    def next_frame(self):
        script = "const done = arguments[0]; requestAnimationFrame(() => requestAnimationFrame(() => done()))"
        self.driver.execute_async_script(script)

    def click(self, selector):
        self.run("document.querySelector(arguments[0]).click()", selector)

    def set_field(self, name, value):
        """As a visitor does: by the field's own control."""
        self.run(
            """const [input, value] = [document.getElementById('field-' + arguments[0]), arguments[1]];
            if (input.type === 'checkbox') {
                if (input.checked !== (value !== 0)) { input.click(); }
                return;
            }
            input.value = value;
            input.dispatchEvent(new Event('input'));""",
            name, value)

    def pointer(self, kind, x, y, pressure=0.0, pen="pen"):
        """A real pointer event at a place of the stage; kind is Pressed, Moved or Released."""
        box = self.run("const box = document.getElementById('ink').getBoundingClientRect(); return [box.left, box.top]")
        self.send("Input.dispatchMouseEvent", {
            "type": f"mouse{kind}", "x": box[0] + x, "y": box[1] + y, "pointerType": pen, "force": pressure,
            "button": "none" if kind == "Moved" and pressure == 0 else "left",
            "buttons": 1 if pressure > 0 else 0, "clickCount": 0 if kind == "Moved" else 1})

    def stroke(self, points, pen="pen"):
        """Points are (x, y, pressure); the pen lifts at the last one."""
        self.pointer("Pressed", *points[0], pen=pen)
        for point in points[1:]:
            self.pointer("Moved", *point, pen=pen)
        self.pointer("Released", *points[-1][:2], pen=pen)
        self.next_frame()

    def ink(self, x, y):
        """Red, green, blue and opacity of the pixel below and right of a place of the stage."""
        return tuple(self.run(
            COPY + "return Array.from(copy.getImageData(arguments[0] * ratio, arguments[1] * ratio, 1, 1).data);", x, y))

    def text(self, selector):
        return self.run("return document.querySelector(arguments[0]).textContent", selector)

    def is_empty(self):
        return self.run(EMPTY)

    def messages(self):
        return [entry["message"] for entry in self.driver.get_log("browser")]

    def faults(self):
        """Messages but mere information."""
        return [entry["message"] for entry in self.driver.get_log("browser") if entry["level"] != "INFO"]


# A canvas that is read often warns on the console, so a copy is read.
COPY = """const canvas = document.getElementById('ink');
    const ratio = canvas.width / canvas.clientWidth;
    const copy = new OffscreenCanvas(canvas.width, canvas.height).getContext('2d', { willReadFrequently: true });
    copy.drawImage(canvas, 0, 0);
    """
EMPTY = COPY + "return copy.getImageData(0, 0, canvas.width, canvas.height).data.every((byte) => byte === 0);"
