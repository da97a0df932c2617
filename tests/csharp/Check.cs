// Copyright 2026 The Vyr Authors
// SPDX-License-Identifier: Apache-2.0

using System;

/// <summary>What the tests say of a program: nothing, or the first thing that doesn't hold.</summary>
static class Check
{
    internal static int Count;

    internal static void That(bool holds, string what)
    {
        ++Count;
        if (!holds) throw new Exception("doesn't hold: " + what);
    }

    internal static void Equal<T>(T expected, T found, string what)
    {
        That(Equals(expected, found), what + ": " + found + " instead of " + expected);
    }

    /// <summary>The action must throw exactly that.</summary>
    internal static T Throws<T>(string what, Action action) where T : Exception
    {
        ++Count;
        try
        {
            action();
        }
        catch (T failure)
        {
            if (failure.GetType() == typeof(T)) return failure;
            throw new Exception(what + " throws " + failure.GetType() + " instead of " + typeof(T), failure);
        }
        throw new Exception(what + " doesn't throw " + typeof(T));
    }
}
