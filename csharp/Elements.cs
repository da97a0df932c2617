// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

namespace Vyr
{
    /// <summary>An object that can be a file of its own: it has an element to be the file's root.</summary>
    public interface IElement
    {
    }

    /// <summary>Saving of what can be a file of its own.</summary>
    public static class Elements
    {
        /// <summary>Saves a file with this element as its root.</summary>
        public static void Save<T>(this T element, string path) where T : VyrObject, IElement => element.TrySave(path).DemandSaved();

        /// <summary>The same without throwing for what is wrong.</summary>
        public static LoadReport TrySave<T>(this T element, string path) where T : VyrObject, IElement => element.SaveElement(path);
    }
}
