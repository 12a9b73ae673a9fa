"""Draws one stroke and ends when its ink has gone: python stroke.py [gdi]"""
import sys
import time

from lumora import BackEnd, Overlay, Sample

STEPS = 80
STEP_SECONDS = 0.01
INK_MILLISECONDS = 1500


def make_sample(step, max_pressure):
    # The last sample lifts the pen.
    pressure = 1 + max_pressure * step // STEPS if step < STEPS else 0
    return Sample(200 + 5 * step, 400 - step, pressure)


# Pumps meanwhile: the overlay paints in this thread's message loop.
def wait(overlay, seconds):
    end = time.monotonic() + seconds
    goes_on = True
    while goes_on and time.monotonic() < end:
        goes_on = overlay.pump()
        time.sleep(0.001)
    return goes_on


def main():
    with Overlay(BackEnd.GDI if "gdi" in sys.argv else None) as overlay:
        overlay.set_params(inkColor=0x143CC8, inkDecayTime=INK_MILLISECONDS)
        max_pressure = overlay.params.maxPressure
        for step in range(STEPS + 1):
            overlay.input_samples([make_sample(step, max_pressure)])
            if not wait(overlay, STEP_SECONDS):
                return
        wait(overlay, INK_MILLISECONDS / 1000 + 0.5)


if __name__ == "__main__":
    main()
