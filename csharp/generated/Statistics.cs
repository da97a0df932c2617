// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0
//
// Made by schema/generator/generate.py from schema/vyr.xsd and schema/binding.toml. Change those instead.

using System;

namespace Vyr
{
    /// <summary>Standard deviation of the tristimulus value X.</summary>
    public partial class FunctionStdDevXType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevXType() : this(Native.Make()) { }

        internal FunctionStdDevXType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevXType Clone() => (FunctionStdDevXType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevXType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Standard deviation of the tristimulus value Y.</summary>
    public partial class FunctionStdDevYType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevYType() : this(Native.Make()) { }

        internal FunctionStdDevYType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevYType Clone() => (FunctionStdDevYType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevYType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Standard deviation of the tristimulus value Z.</summary>
    public partial class FunctionStdDevZType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevZType() : this(Native.Make()) { }

        internal FunctionStdDevZType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevZType Clone() => (FunctionStdDevZType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevZType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Standard deviation of the lightness L*.</summary>
    public partial class FunctionStdDevLType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevLType() : this(Native.Make()) { }

        internal FunctionStdDevLType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevLType Clone() => (FunctionStdDevLType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevLType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Standard deviation of a*.</summary>
    public partial class FunctionStdDevAType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevAType() : this(Native.Make()) { }

        internal FunctionStdDevAType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevAType Clone() => (FunctionStdDevAType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevAType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Standard deviation of b*.</summary>
    public partial class FunctionStdDevBType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevBType() : this(Native.Make()) { }

        internal FunctionStdDevBType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevBType Clone() => (FunctionStdDevBType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevBType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Standard deviation of the chroma C*.</summary>
    public partial class FunctionStdDevCType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevCType() : this(Native.Make()) { }

        internal FunctionStdDevCType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevCType Clone() => (FunctionStdDevCType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevCType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Standard deviation of the hue.</summary>
    public partial class FunctionStdDevHType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevHType() : this(Native.Make()) { }

        internal FunctionStdDevHType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevHType Clone() => (FunctionStdDevHType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevHType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Average standard deviation of the lightness L*.</summary>
    public partial class FunctionAverageStdDevLType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionAverageStdDevLType() : this(Native.Make()) { }

        internal FunctionAverageStdDevLType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionAverageStdDevLType Clone() => (FunctionAverageStdDevLType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionAverageStdDevLType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Average standard deviation of a*.</summary>
    public partial class FunctionAverageStdDevAType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionAverageStdDevAType() : this(Native.Make()) { }

        internal FunctionAverageStdDevAType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionAverageStdDevAType Clone() => (FunctionAverageStdDevAType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionAverageStdDevAType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Average standard deviation of b*.</summary>
    public partial class FunctionAverageStdDevBType : FunctionType
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionAverageStdDevBType() : this(Native.Make()) { }

        internal FunctionAverageStdDevBType(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionAverageStdDevBType Clone() => (FunctionAverageStdDevBType)Copy();
        internal override VyrObject Copy() => Copied(new FunctionAverageStdDevBType(Native.Make(Pointer)));
        internal override ClassCalls Class => Parts.Class;
    }

    /// <summary>Standard deviation of the tristimulus value X.</summary>
    public partial class FunctionStdDevX : FunctionStdDevXType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevX() : this(Native.Make()) { }

        internal FunctionStdDevX(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevX Clone() => (FunctionStdDevX)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevX(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionStdDevX as its root.</summary>
        public static FunctionStdDevX Load(string path) { TryLoad(path, out FunctionStdDevX loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionStdDevX loaded, LoadOptions options = null) => Load(new FunctionStdDevX(), path, options, out loaded);
    }

    /// <summary>Standard deviation of the tristimulus value Y.</summary>
    public partial class FunctionStdDevY : FunctionStdDevYType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevY() : this(Native.Make()) { }

        internal FunctionStdDevY(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevY Clone() => (FunctionStdDevY)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevY(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionStdDevY as its root.</summary>
        public static FunctionStdDevY Load(string path) { TryLoad(path, out FunctionStdDevY loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionStdDevY loaded, LoadOptions options = null) => Load(new FunctionStdDevY(), path, options, out loaded);
    }

    /// <summary>Standard deviation of the tristimulus value Z.</summary>
    public partial class FunctionStdDevZ : FunctionStdDevZType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevZ() : this(Native.Make()) { }

        internal FunctionStdDevZ(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevZ Clone() => (FunctionStdDevZ)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevZ(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionStdDevZ as its root.</summary>
        public static FunctionStdDevZ Load(string path) { TryLoad(path, out FunctionStdDevZ loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionStdDevZ loaded, LoadOptions options = null) => Load(new FunctionStdDevZ(), path, options, out loaded);
    }

    /// <summary>Standard deviation of the lightness L*.</summary>
    public partial class FunctionStdDevL : FunctionStdDevLType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevL() : this(Native.Make()) { }

        internal FunctionStdDevL(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevL Clone() => (FunctionStdDevL)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevL(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionStdDevL as its root.</summary>
        public static FunctionStdDevL Load(string path) { TryLoad(path, out FunctionStdDevL loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionStdDevL loaded, LoadOptions options = null) => Load(new FunctionStdDevL(), path, options, out loaded);
    }

    /// <summary>Standard deviation of a*.</summary>
    public partial class FunctionStdDevA : FunctionStdDevAType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevA() : this(Native.Make()) { }

        internal FunctionStdDevA(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevA Clone() => (FunctionStdDevA)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevA(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionStdDevA as its root.</summary>
        public static FunctionStdDevA Load(string path) { TryLoad(path, out FunctionStdDevA loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionStdDevA loaded, LoadOptions options = null) => Load(new FunctionStdDevA(), path, options, out loaded);
    }

    /// <summary>Standard deviation of b*.</summary>
    public partial class FunctionStdDevB : FunctionStdDevBType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevB() : this(Native.Make()) { }

        internal FunctionStdDevB(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevB Clone() => (FunctionStdDevB)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevB(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionStdDevB as its root.</summary>
        public static FunctionStdDevB Load(string path) { TryLoad(path, out FunctionStdDevB loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionStdDevB loaded, LoadOptions options = null) => Load(new FunctionStdDevB(), path, options, out loaded);
    }

    /// <summary>Standard deviation of the chroma C*.</summary>
    public partial class FunctionStdDevC : FunctionStdDevCType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevC() : this(Native.Make()) { }

        internal FunctionStdDevC(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevC Clone() => (FunctionStdDevC)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevC(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionStdDevC as its root.</summary>
        public static FunctionStdDevC Load(string path) { TryLoad(path, out FunctionStdDevC loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionStdDevC loaded, LoadOptions options = null) => Load(new FunctionStdDevC(), path, options, out loaded);
    }

    /// <summary>Standard deviation of the hue.</summary>
    public partial class FunctionStdDevH : FunctionStdDevHType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionStdDevH() : this(Native.Make()) { }

        internal FunctionStdDevH(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionStdDevH Clone() => (FunctionStdDevH)Copy();
        internal override VyrObject Copy() => Copied(new FunctionStdDevH(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionStdDevH as its root.</summary>
        public static FunctionStdDevH Load(string path) { TryLoad(path, out FunctionStdDevH loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionStdDevH loaded, LoadOptions options = null) => Load(new FunctionStdDevH(), path, options, out loaded);
    }

    /// <summary>Average standard deviation of the lightness L*.</summary>
    public partial class FunctionAverageStdDevL : FunctionAverageStdDevLType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionAverageStdDevL() : this(Native.Make()) { }

        internal FunctionAverageStdDevL(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionAverageStdDevL Clone() => (FunctionAverageStdDevL)Copy();
        internal override VyrObject Copy() => Copied(new FunctionAverageStdDevL(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionAverageStdDevL as its root.</summary>
        public static FunctionAverageStdDevL Load(string path) { TryLoad(path, out FunctionAverageStdDevL loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionAverageStdDevL loaded, LoadOptions options = null) => Load(new FunctionAverageStdDevL(), path, options, out loaded);
    }

    /// <summary>Average standard deviation of a*.</summary>
    public partial class FunctionAverageStdDevA : FunctionAverageStdDevAType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionAverageStdDevA() : this(Native.Make()) { }

        internal FunctionAverageStdDevA(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionAverageStdDevA Clone() => (FunctionAverageStdDevA)Copy();
        internal override VyrObject Copy() => Copied(new FunctionAverageStdDevA(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionAverageStdDevA as its root.</summary>
        public static FunctionAverageStdDevA Load(string path) { TryLoad(path, out FunctionAverageStdDevA loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionAverageStdDevA loaded, LoadOptions options = null) => Load(new FunctionAverageStdDevA(), path, options, out loaded);
    }

    /// <summary>Average standard deviation of b*.</summary>
    public partial class FunctionAverageStdDevB : FunctionAverageStdDevBType, IElement
    {
        /// <summary>A new object that stands on its own, with nothing set.</summary>
        public FunctionAverageStdDevB() : this(Native.Make()) { }

        internal FunctionAverageStdDevB(Handle handle) : base(handle) { }

        /// <inheritdoc/>
        public new FunctionAverageStdDevB Clone() => (FunctionAverageStdDevB)Copy();
        internal override VyrObject Copy() => Copied(new FunctionAverageStdDevB(Native.Make(Pointer)));

        /// <summary>Loads a file that has the element FunctionAverageStdDevB as its root.</summary>
        public static FunctionAverageStdDevB Load(string path) { TryLoad(path, out FunctionAverageStdDevB loaded).DemandLoaded(path); return loaded; }

        /// <summary>The same without throwing for what is wrong with the file; null then, unless the options ask for
        /// what was read.</summary>
        public static LoadReport TryLoad(string path, out FunctionAverageStdDevB loaded, LoadOptions options = null) => Load(new FunctionAverageStdDevB(), path, options, out loaded);
    }
}
