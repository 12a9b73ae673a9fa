// Draws one stroke and ends when its ink has gone.
using System.Diagnostics;
using System.Threading;
using Lumora;

internal static class Stroke
{
    private const int Steps = 80;
    private const int StepMilliseconds = 10;
    private const int InkMilliseconds = 1500;

    private static Sample MakeSample(int step, uint maxPressure)
    {
        // The last sample lifts the pen.
        int pressure = step < Steps ? 1 + (int)maxPressure * step / Steps : 0;
        return new Sample(200 + 5 * step, 400 - step, pressure);
    }

    // Pumps meanwhile: the overlay paints in this thread's message loop.
    private static bool Wait(Overlay overlay, int milliseconds)
    {
        var watch = Stopwatch.StartNew();
        bool goesOn = true;
        while (goesOn && watch.ElapsedMilliseconds < milliseconds) {
            goesOn = overlay.Pump();
            Thread.Sleep(1);
        }
        return goesOn;
    }

    private static void Main(string[] arguments)
    {
        bool withGdi = arguments.Length > 0 && arguments[0] == "gdi";
        using (var overlay = new Overlay(withGdi ? BackEnd.Gdi : (BackEnd?)null)) {
            Params parameters = overlay.Params;
            parameters.inkColor = 0x143CC8;
            parameters.inkDecayTime = InkMilliseconds;
            overlay.SetParams(parameters);
            bool goesOn = true;
            for (int step = 0; goesOn && step <= Steps; ++step) {
                overlay.InputSamples(MakeSample(step, parameters.maxPressure));
                goesOn = Wait(overlay, StepMilliseconds);
            }
            if (goesOn) {
                Wait(overlay, InkMilliseconds + 500);
            }
        }
    }
}
