// What the binding calls, and what it refuses before it calls anything; a stand-in for the library writes it down.
using System;
using System.Linq;
using System.Runtime.InteropServices;
using System.Threading;
using Lumora;

internal static class OverlayTests
{
    private const int NoQuit = -1;

    [DllImport("LumoraDLL.dll")] private static extern IntPtr StandInTakeLog();
    [DllImport("LumoraDLL.dll")] private static extern int StandInQuitWaits();
    [DllImport("LumoraDLL.dll")] private static extern void StandInQuit(int exitCode);
    [DllImport("LumoraDLL.dll")] private static extern void StandInPost();
    [DllImport("LumoraDLL.dll")] private static extern void StandInFailCreation(int fails);
    [DllImport("LumoraDLL.dll")] private static extern void StandInSetPenDataSize(ulong size);

    private static string TakeLog() { return Marshal.PtrToStringAnsi(StandInTakeLog()).TrimEnd('\n'); }

    private static void Equal<T>(T expected, T actual)
    {
        if (!Equals(expected, actual)) {
            throw new Exception($"expected {expected}\n     not {actual}");
        }
    }

    private static void Throws<T>(Action action) where T : Exception
    {
        try {
            action();
        } catch (T) {
            return;
        }
        throw new Exception($"no {typeof(T).Name}");
    }

    private static void CreationAndEndLeaveNoQuitMessage()
    {
        var first = new Overlay();
        var second = new Overlay();
        Equal(NoQuit, StandInQuitWaits());
        first.Dispose();
        second.Dispose();
        second.Dispose();
        Equal("LM_Create\nLM_Create\nLM_Destroy", TakeLog());
        Equal(NoQuit, StandInQuitWaits());
    }

    private static void TheHostsOwnQuitMessageStays()
    {
        using (new Overlay()) {
            StandInQuit(7);
        }
        Equal(7, StandInQuitWaits());
        using (var overlay = new Overlay()) {
            Equal(false, overlay.Pump());
        }
    }

    private static void AnOverlayThatIsGoneRefuses()
    {
        var first = new Overlay();
        using (new Overlay()) {
            Throws<ObjectDisposedException>(() => first.Params.ToString());
            Throws<ObjectDisposedException>(() => first.InputSamples());
            Throws<ObjectDisposedException>(() => first.Pump());
        }
    }

    private static void AnotherThreadIsRefused()
    {
        using (var overlay = new Overlay()) {
            TakeLog();
            Exception failure = null;
            var thread = new Thread(() => {
                try {
                    Throws<LumoraException>(() => overlay.InputSamples());
                    Throws<LumoraException>(overlay.Dispose);
                    Throws<LumoraException>(() => new Overlay());
                } catch (Exception caught) {
                    failure = caught;
                }
            });
            thread.Start();
            thread.Join();
            Equal(null, failure);
            Equal("", TakeLog());
            overlay.InputSamples();
        }
    }

    private static void AWindowThatCannotBeMadeIsAnError()
    {
        StandInFailCreation(1);
        Throws<LumoraException>(() => new Overlay());
        StandInFailCreation(0);
        Equal("LM_Create\nLM_Destroy", TakeLog());
        Equal(NoQuit, StandInQuitWaits());
    }

    private static void ABackEndIsChosenByASecondCreation()
    {
        using (new Overlay(BackEnd.Gdi)) {
            Equal("LM_Create\nSendMessageW to the overlay 0x111 40022 0\nLM_Destroy\nLM_Create", TakeLog());
            Equal(NoQuit, StandInQuitWaits());
        }
    }

    private static void AChangeOfTheBackEndKeepsTheParameters()
    {
        using (var overlay = new Overlay()) {
            Params parameters = overlay.Params;
            parameters.brushSize = 33;
            overlay.SetParams(parameters);
            IntPtr before = overlay.WindowHandle;
            string kept = TakeLog().Split('\n').Last();
            overlay.SetBackEnd(BackEnd.Direct2D);
            Equal(false, before == overlay.WindowHandle);
            Equal("LM_InputPenDataArray 0 of an array\nLM_GetCopiedParams\nSendMessageW to the overlay 0x111 40021 0\n" +
                  "LM_Destroy\nLM_Create\n" + kept, TakeLog());
        }
    }

    private static void SamplesCrossAsTheyAre()
    {
        using (var overlay = new Overlay()) {
            TakeLog();
            overlay.InputSamples(new Sample(1, -2, 3), new Sample(int.MaxValue, int.MinValue, 0));
            Equal("LM_InputPenDataArray 2 of an array, at (1, -2) 3, at (2147483647, -2147483648) 0", TakeLog());
        }
    }

    private static void EveryParameterHasItsPlace()
    {
        using (var overlay = new Overlay()) {
            overlay.SetParams(new Params {
                reserved0 = 0x11223344, inkDecayTime = 0x55667788, inkColor = 0x00AABBCC, minBrushSize = 1, brushSize = 2,
                maxPressure = 3, line = true, cursor = true, usePressure = true, zebraMode = true, reserved31 = 0xA5,
            });
            Equal("LM_SetParams 44 33 22 11 88 77 66 55 cc bb aa 00 01 00 00 00 02 00 00 00 03 00 00 00 01 00 01 01 00 01 00 a5",
                  TakeLog().Split('\n').Last());
            Equal(0x55667788u, overlay.Params.inkDecayTime);
            Equal(true, overlay.Params.zebraMode);
        }
    }

    private static void BrushDataIsMadeByteByByte()
    {
        using (var overlay = new Overlay()) {
            TakeLog();
            overlay.SendBrushData("BrushSize", 1, 30);
            Equal("LM_SetData_from_App 42 00 72 00 75 00 73 00 68 00 53 00 69 00 7a 00 65 00 00 00 08 00 00 00 " +
                  "01 00 00 00 1e 00 00 00", TakeLog());
        }
    }

    private static void PumpingDispatches()
    {
        using (var overlay = new Overlay()) {
            TakeLog();
            StandInPost();
            Equal(true, overlay.Pump());
            Equal("DispatchMessageW 0x401", TakeLog());
        }
    }

    private static void WrongValuesNeverCross()
    {
        using (var overlay = new Overlay()) {
            TakeLog();
            Throws<ArgumentException>(() => overlay.SendBrushData("Inkcolor", 1));
            Throws<ArgumentException>(() => overlay.SendBrushData("BrushSize", 1));
            Throws<ArgumentException>(() => overlay.SendBrushData(null));
            Throws<ArgumentException>(() => overlay.InputSamples(null));
            Throws<ArgumentException>(() => overlay.SetBackEnd((BackEnd)1));
            Throws<ArgumentException>(() => new Overlay((BackEnd)1));
            Equal("", TakeLog());
        }
    }

    private static void ADebugLevelIsPassedOn()
    {
        Overlay.SetDebugLevel(255);
        Equal("LM_SetDebugLevel 255", TakeLog());
    }

    private static void OtherRecordSizesAreRefused()
    {
        StandInSetPenDataSize(40);
        Throws<LumoraException>(() => new Overlay());
        StandInSetPenDataSize(36);
        Equal("", TakeLog());
    }

    private static int Main()
    {
        int failures = 0;
        var tests = new Action[] {
            CreationAndEndLeaveNoQuitMessage, TheHostsOwnQuitMessageStays, AnOverlayThatIsGoneRefuses, AnotherThreadIsRefused,
            AWindowThatCannotBeMadeIsAnError, ABackEndIsChosenByASecondCreation, AChangeOfTheBackEndKeepsTheParameters,
            SamplesCrossAsTheyAre, EveryParameterHasItsPlace, BrushDataIsMadeByteByByte, PumpingDispatches,
            WrongValuesNeverCross, ADebugLevelIsPassedOn, OtherRecordSizesAreRefused,
        };
        foreach (Action test in tests) {
            TakeLog();
            try {
                test();
                Console.WriteLine($"passed {test.Method.Name}");
            } catch (Exception failure) {
                Console.WriteLine($"FAILED {test.Method.Name}: {failure}");
                ++failures;
            }
        }
        return failures == 0 ? 0 : 1;
    }
}
