// Brush-data messages. Only whole, right ones are made: the library trusts what it gets.
using System;
using System.Collections.Generic;
using System.Text;

namespace Lumora
{
    internal static class BrushData
    {
        private static readonly Dictionary<string, int> valueCounts = new Dictionary<string, int> {
            { "Nothing", 0 }, { "InkColor", 1 }, { "BrushSize", 2 }, { "InkDecayTime", 1 }, { "BrushParams", 3 },
        };

        internal static byte[] Make(string kind, uint[] values)
        {
            if (kind == null || !valueCounts.TryGetValue(kind, out int count)) {
                throw new ArgumentException($"there is no brush data \"{kind}\", but {string.Join(", ", valueCounts.Keys)}");
            }
            if (values.Length != count) {
                throw new ArgumentException($"{kind} takes {count} values, not {values.Length}");
            }
            var bytes = new List<byte>(Encoding.Unicode.GetBytes(kind + '\0'));
            bytes.AddRange(BitConverter.GetBytes(4 * count));
            foreach (uint value in values) {
                bytes.AddRange(BitConverter.GetBytes(value));
            }
            return bytes.ToArray();
        }
    }
}
