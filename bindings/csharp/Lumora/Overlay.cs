// The overlay window and its ink: the one instance of the library, as an object.
using System;
using System.Linq;

namespace Lumora
{
    /// <summary>A process has one overlay: a new one takes the place of the one before. All calls come from the thread that
    /// made it.</summary>
    public sealed class Overlay : IDisposable
    {
        private static Overlay current;

        private readonly InstanceHandle instance;

        /// <summary>Without a back-end the library's own choice holds: at first Composition, then what was chosen
        /// last.</summary>
        public Overlay(BackEnd? backEnd = null)
        {
            CheckBackEnd(backEnd ?? BackEnd.Composition);
            Native.Check();
            if (current != null && !current.instance.BelongsToThisThread) {
                throw new LumoraException("the overlay of another thread still lives");
            }
            current?.instance.SetHandleAsInvalid();
            instance = new InstanceHandle();
            current = null;
            instance.Create();
            current = this;
            if (backEnd != null) {
                Choose(backEnd.Value);
            }
        }

        /// <summary>How much the library writes to the debugger: 0 nothing, 1 basic, 2 normal, 3 detailed, 255 all. Before
        /// an overlay is made, any level but 0 also gives it its tray menu.</summary>
        public static void SetDebugLevel(uint level)
        {
            Native.Check();
            Native.LM_SetDebugLevel(level);
        }

        /// <summary>The window's HWND; zero when it has been lost. It changes with the back-end.</summary>
        public IntPtr WindowHandle
        {
            get
            {
                CheckLiving();
                return Native.LM_GetWindowHandle();
            }
        }

        /// <summary>A copy, with what a person has changed in the settings dialog until now.</summary>
        public Params Params
        {
            get
            {
                // An input of no samples brings the dialog's changes in.
                InputSamples();
                Native.LM_GetCopiedParams(out Params copied);
                return copied;
            }
        }

        /// <summary>Replaces the parameters; start from <see cref="Params"/> and change what you need.</summary>
        public void SetParams(Params changed)
        {
            CheckLiving();
            Native.LM_SetParams(ref changed);
        }

        /// <summary>Draws the samples, oldest first, with the next message that the overlay gets.</summary>
        public void InputSamples(params Sample[] samples)
        {
            if (samples == null) {
                throw new ArgumentNullException(nameof(samples));
            }
            CheckLiving();
            // The library ignores a null array, but not a count of 0; it goes by the time of receipt, but drops time 0.
            PenData[] data = samples.Length == 0 ? new PenData[1] : samples.Select(ToPenData).ToArray();
            Native.LM_InputPenDataArray(data, (ulong)samples.Length);
        }

        /// <summary>Changes some parameters by a brush-data message: "Nothing", "InkColor" colour, "BrushSize" smallest
        /// full, "InkDecayTime" milliseconds, "BrushParams" colour smallest full. They show with the next repaint.</summary>
        public void SendBrushData(string kind, params uint[] values)
        {
            byte[] message = BrushData.Make(kind, values);
            CheckLiving();
            Native.LM_SetData_from_App(message, (ulong)message.Length);
        }

        /// <summary>Changes the back-end at once; the overlay gets a new window, the ink on the screen goes.</summary>
        public void SetBackEnd(BackEnd backEnd)
        {
            CheckBackEnd(backEnd);
            Params kept = Params;
            Choose(backEnd);
            Native.LM_SetParams(ref kept);
        }

        /// <summary>Dispatches the messages that wait; false when a quit message was among them. Not for WPF and Windows
        /// Forms, which do so.</summary>
        public bool Pump()
        {
            return Messages.Pump(WindowHandle);
        }

        /// <summary>Takes the overlay away; does nothing a second time.</summary>
        public void Dispose()
        {
            if (current != this) {
                return;
            }
            CheckLiving();
            current = null;
            instance.Dispose();
        }

        // The choice outlives the instance; the next one begins with it. Left to itself the library would follow it at
        // the next input, and leave the old window behind.
        private void Choose(BackEnd backEnd)
        {
            Messages.SendCommand(WindowHandle, backEnd);
            current = null;
            instance.Recreate();
            current = this;
        }

        private void CheckLiving()
        {
            if (current != this) {
                throw new ObjectDisposedException(nameof(Overlay));
            }
            if (!instance.BelongsToThisThread) {
                throw new LumoraException("an overlay is called by the thread that made it");
            }
        }

        private static void CheckBackEnd(BackEnd backEnd)
        {
            if (!Enum.IsDefined(typeof(BackEnd), backEnd)) {
                throw new ArgumentOutOfRangeException(nameof(backEnd));
            }
        }

        private static PenData ToPenData(Sample sample)
        {
            return new PenData { time = 1, x = sample.x, y = sample.y, pressure = sample.pressure };
        }
    }
}
