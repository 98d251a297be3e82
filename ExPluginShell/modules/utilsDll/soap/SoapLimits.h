#pragma once

#include "qtsoaplimits.h"

/// The bounds that clients cannot change. Internal, not installed.
namespace TOLVAN_NAMESPACE::SoapLimits
{

constexpr int TagBytes = 64 * 1024;    ///< XML readers compare all attributes of a tag with each other
constexpr int Namespaces = 1024;       ///< declarations in force at one place; each name is looked up in them
constexpr int Depth = 256;             ///< values are read, written and destroyed by recursion
constexpr qint64 ArrayItems = 1 << 24; ///< positions, not items; memory is used for the items present
constexpr int ArrayDimensions = 5;

/// What a value costs beside its texts, in bytes: the object, its counted pointer, its place in the parent.
constexpr qint64 ValueBytes = 152;
constexpr qint64 RunItemBytes = 84;   ///< the same for an item of a long array of simple values
constexpr qint64 TextBytes = 48;      ///< an allocated text of no characters
constexpr qint64 IdentityBytes = 192; ///< an id or a reference, in the tables that resolve it

} // namespace TOLVAN_NAMESPACE::SoapLimits
