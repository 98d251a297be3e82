#pragma once

#include <QtGlobal>

/// Internal: what a document may claim. Far above what services send, far below what harms the process.
namespace TOLVAN_NAMESPACE::SoapLimits
{

constexpr int DocumentBytes = 64 * 1024 * 1024; ///< also what the transport receives at most
constexpr int TagBytes = 64 * 1024;    ///< XML readers compare all attributes of a tag with each other
constexpr int Namespaces = 1024;       ///< declarations in force at one place; each name is looked up in them
constexpr int Depth = 256;             ///< values are read, written and destroyed by recursion
constexpr int Elements = 1 << 21;      ///< a tag of four bytes becomes a value of 150
constexpr qint64 ArrayItems = 1 << 24; ///< positions, not items; memory goes by what is present
constexpr int ArrayDimensions = 5;

} // namespace TOLVAN_NAMESPACE::SoapLimits
