// The library's one instance, held by its window.
using System;
using System.Threading;
using Microsoft.Win32.SafeHandles;

namespace Lumora
{
    internal sealed class InstanceHandle : SafeHandleZeroOrMinusOneIsInvalid
    {
        private readonly Thread thread = Thread.CurrentThread;

        internal InstanceHandle() : base(true) { }

        internal bool BelongsToThisThread => thread == Thread.CurrentThread;

        // The window is null where it could not be made; there is an instance nevertheless, and it is ended at once.
        internal void Create()
        {
            Messages.WithoutQuit(() => SetHandle(Native.LM_Create()));
            if (IsInvalid) {
                Native.LM_Destroy();
                throw new LumoraException("the overlay window could not be made");
            }
        }

        internal void Recreate()
        {
            Messages.WithoutQuit(Native.LM_Destroy);
            Create();
        }

        // A window is destroyed by its own thread only. What the finalizer's thread finds left over ends with the process.
        protected override bool ReleaseHandle()
        {
            if (BelongsToThisThread) {
                Messages.WithoutQuit(Native.LM_Destroy);
            }
            return true;
        }
    }
}
