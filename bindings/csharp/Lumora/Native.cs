// The nine functions of LumoraDLL.dll, and a look whether it is the library that this binding was written for.
using System;
using System.Runtime.InteropServices;

namespace Lumora
{
    internal static class Native
    {
        private const string Library = "LumoraDLL.dll";

        [DllImport(Library, ExactSpelling = true)] internal static extern IntPtr LM_Create();
        [DllImport(Library, ExactSpelling = true)] internal static extern void LM_Destroy();
        [DllImport(Library, ExactSpelling = true)] internal static extern void LM_GetCopiedParams(out Params parameters);
        [DllImport(Library, ExactSpelling = true)] private static extern void LM_GetElmSize(out ulong paramsSize, out ulong penDataSize);
        [DllImport(Library, ExactSpelling = true)] internal static extern IntPtr LM_GetWindowHandle();
        [DllImport(Library, ExactSpelling = true)] internal static extern void LM_InputPenDataArray([In] PenData[] samples, ulong count);
        [DllImport(Library, ExactSpelling = true)] internal static extern void LM_SetData_from_App([In, Out] byte[] message, ulong size);
        [DllImport(Library, ExactSpelling = true)] internal static extern void LM_SetDebugLevel(uint level);
        [DllImport(Library, ExactSpelling = true)] internal static extern void LM_SetParams([In] ref Params parameters);

        internal static void Check()
        {
            if (IntPtr.Size != sizeof(ulong)) {
                throw new LumoraException("Lumora runs in 64-bit processes only");
            }
            try {
                CheckSizes();
            } catch (Exception cause) when (cause is DllNotFoundException || cause is EntryPointNotFoundException ||
                                            cause is BadImageFormatException) {
                throw new LumoraException(Library + " cannot be loaded: " + cause.Message, cause);
            }
        }

        private static void CheckSizes()
        {
            LM_GetElmSize(out ulong paramsSize, out ulong penDataSize);
            int ownParamsSize = Marshal.SizeOf(typeof(Params));
            int ownPenDataSize = Marshal.SizeOf(typeof(PenData));
            if (paramsSize != (ulong)ownParamsSize || penDataSize != (ulong)ownPenDataSize) {
                throw new LumoraException($"{Library} has records of {paramsSize} and {penDataSize} bytes, this binding of " +
                                          $"{ownParamsSize} and {ownPenDataSize}: they do not belong together");
            }
        }
    }
}
