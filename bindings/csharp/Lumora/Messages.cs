// The calling thread's messages: pumped for hosts that do not do it, and without the quit that an overlay's end posts.
using System;
using System.Runtime.InteropServices;

namespace Lumora
{
    internal static class Messages
    {
        private const string User32 = "user32.dll";
        private const uint WM_QUIT = 0x0012;
        private const uint WM_COMMAND = 0x0111;
        private const uint PM_REMOVE = 1;
        private const uint GA_ROOT = 2;
        private const uint GW_OWNER = 4;

        [StructLayout(LayoutKind.Sequential)]
        private struct Message
        {
            public IntPtr window;
            public uint number;
            public IntPtr wParam;
            public IntPtr lParam;
            public uint time;
            public int x;
            public int y;
        }

        [DllImport(User32, ExactSpelling = true)]
        private static extern int PeekMessageW(out Message message, IntPtr window, uint first, uint last, uint how);
        [DllImport(User32, ExactSpelling = true)] private static extern void PostQuitMessage(int exitCode);
        [DllImport(User32, ExactSpelling = true)] private static extern int TranslateMessage([In] ref Message message);
        [DllImport(User32, ExactSpelling = true)] private static extern IntPtr DispatchMessageW([In] ref Message message);
        [DllImport(User32, ExactSpelling = true)] private static extern int IsDialogMessageW(IntPtr dialog, [In] ref Message message);
        [DllImport(User32, ExactSpelling = true)] private static extern IntPtr GetAncestor(IntPtr window, uint which);
        [DllImport(User32, ExactSpelling = true)] private static extern IntPtr GetWindow(IntPtr window, uint which);
        [DllImport(User32, ExactSpelling = true)]
        private static extern IntPtr SendMessageW(IntPtr window, uint number, UIntPtr wParam, IntPtr lParam);

        // Runs what destroys an overlay window and takes the quit message that this posts out of the queue, where it
        // would end the host. One that waited before is the host's own and stays.
        internal static void WithoutQuit(Action action)
        {
            bool hostQuits = TakeQuit(out int exitCode);
            try {
                action();
            } finally {
                TakeQuit(out _);
                if (hostQuits) {
                    PostQuitMessage(exitCode);
                }
            }
        }

        // Dispatches what waits; false when a quit message was among it.
        internal static bool Pump(IntPtr overlay)
        {
            while (PeekMessageW(out Message message, IntPtr.Zero, 0, 0, PM_REMOVE) != 0) {
                if (message.number == WM_QUIT) {
                    return false;
                }
                if (!IsForDialog(overlay, ref message)) {
                    TranslateMessage(ref message);
                    DispatchMessageW(ref message);
                }
            }
            return true;
        }

        internal static void SendCommand(IntPtr window, BackEnd command)
        {
            SendMessageW(window, WM_COMMAND, new UIntPtr((uint)command), IntPtr.Zero);
        }

        private static bool TakeQuit(out int exitCode)
        {
            bool waits = PeekMessageW(out Message message, IntPtr.Zero, WM_QUIT, WM_QUIT, PM_REMOVE) != 0;
            exitCode = unchecked((int)message.wParam.ToInt64());
            return waits;
        }

        // The settings dialog belongs to the overlay and gets its keys this way.
        private static bool IsForDialog(IntPtr overlay, ref Message message)
        {
            IntPtr root = GetAncestor(message.window, GA_ROOT);
            return root != IntPtr.Zero && overlay != IntPtr.Zero && GetWindow(root, GW_OWNER) == overlay &&
                   IsDialogMessageW(root, ref message) != 0;
        }
    }
}
