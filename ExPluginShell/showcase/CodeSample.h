#pragma once

#include <QString>

/// The lines between the first two marks "//! [code]" of the source file \a name, as they were built into this
/// program; empty if there are none.
QString codeSample(const QString& name);
