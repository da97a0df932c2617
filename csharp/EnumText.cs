// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;
using System.Collections.Generic;
using System.Reflection;

namespace Vyr
{
    /// <summary>The text that a document has for a member of an enumeration.</summary>
    [AttributeUsage(AttributeTargets.Field)]
    public sealed class TextAttribute : Attribute
    {
        /// <summary>Names the text.</summary>
        public TextAttribute(string text)
        {
            Text = text;
        }

        /// <summary>The text.</summary>
        public string Text { get; }
    }

    /// <summary>Enumerations of the format and the texts that documents have for their members.</summary>
    public static class EnumText
    {
        /// <summary>The text of a member; null for a value that is none.</summary>
        public static string Of<T>(T value) where T : struct
        {
            string text;
            return Table<T>.Texts.TryGetValue(value, out text) ? text : null;
        }

        /// <summary>The member with that very text, or null.</summary>
        public static T? Parse<T>(string text) where T : struct
        {
            if (text == null) throw new ArgumentNullException(nameof(text));
            foreach (KeyValuePair<T, string> row in Table<T>.Texts)
            {
                if (row.Value == text) return row.Key;
            }
            return null;
        }

        static class Table<T> where T : struct
        {
            internal static readonly Dictionary<T, string> Texts = Make();

            static Dictionary<T, string> Make()
            {
                var made = new Dictionary<T, string>();
                foreach (FieldInfo field in typeof(T).GetFields(BindingFlags.Public | BindingFlags.Static))
                {
                    var text = (TextAttribute)Attribute.GetCustomAttribute(field, typeof(TextAttribute));
                    if (text != null) made.Add((T)field.GetValue(null), text.Text);
                }
                return made;
            }
        }
    }
}
