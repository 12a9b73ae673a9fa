// The error of this binding: a library that does not fit, an overlay that is gone or belongs to another thread.
using System;

namespace Lumora
{
    public sealed class LumoraException : Exception
    {
        public LumoraException(string message) : base(message) { }
        public LumoraException(string message, Exception cause) : base(message, cause) { }
    }
}
