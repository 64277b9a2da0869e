#pragma once

class QDir;

/// Each page type of the Qt Quick front end beside its Qt Widgets twin, in the
/// same state, over the same host: `pair-<page>-<light|dark>.png`, Widgets on
/// the left, Qt Quick on the right.
class TovuFrontEndPairs
{
public:
    /// Writes the pairs for the current palette into `out`, named with `mode`.
    static bool shoot(const QDir &out, const char *mode);

    TovuFrontEndPairs() = delete;
};
