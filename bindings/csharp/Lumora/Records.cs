// The two records that cross the library's boundary, field by field and by the names of lumora/records.h, and the pen
// sample as a host gives it.
using System.Runtime.InteropServices;

namespace Lumora
{
    /// <summary>How ink looks and how long it lives. Lengths are pixels.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct Params
    {
        /// <summary>The host's own; comes back as it was set.</summary>
        public uint reserved0;
        /// <summary>How long ink stays, in milliseconds.</summary>
        public uint inkDecayTime;
        /// <summary>0x00BBGGRR: red is 0x0000FF.</summary>
        public uint inkColor;
        /// <summary>The smallest width that pressure may give.</summary>
        public uint minBrushSize;
        /// <summary>The width of strokes; with usePressure that of full pressure.</summary>
        public uint brushSize;
        /// <summary>The pressure that gives the full width.</summary>
        public uint maxPressure;
        /// <summary>Shows strokes.</summary>
        [MarshalAs(UnmanagedType.U1)] public bool line;
        /// <summary>A border around strokes, in white or black.</summary>
        [MarshalAs(UnmanagedType.U1)] public bool outline;
        /// <summary>A cross-hair marks a pen that hovers.</summary>
        [MarshalAs(UnmanagedType.U1)] public bool cursor;
        /// <summary>Strokes are as wide as the pen presses.</summary>
        [MarshalAs(UnmanagedType.U1)] public bool usePressure;
        /// <summary>Shows strokes 50 pixels above the pen.</summary>
        [MarshalAs(UnmanagedType.U1)] public bool useOffset;
        /// <summary>Stripes of ink and border colour.</summary>
        [MarshalAs(UnmanagedType.U1)] public bool zebraMode;
        /// <summary>The next touch takes the screen's colour under the mouse cursor.</summary>
        [MarshalAs(UnmanagedType.U1)] public bool colorPicker;
        /// <summary>The host's own.</summary>
        public byte reserved31;
    }

    [StructLayout(LayoutKind.Sequential)]
    internal struct PenData
    {
        public uint time;
        public uint aux1;
        public int x;
        public int y;
        public uint aux4;
        public int pressure;
        public uint aux6;
        public uint aux7;
        public uint aux8;
    }

    /// <summary>One pen sample, in pixels of the screen. Pressure 1 up to maxPressure touches; 0 and less hovers, and
    /// ends a stroke.</summary>
    public struct Sample
    {
        public int x;
        public int y;
        public int pressure;

        public Sample(int x, int y, int pressure)
        {
            this.x = x;
            this.y = y;
            this.pressure = pressure;
        }
    }
}
