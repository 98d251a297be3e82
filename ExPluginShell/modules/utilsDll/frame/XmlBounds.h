#pragma once

#include <QByteArray>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// What an XML text asks of a parser, found by one scan of its tags.
///
/// The cost of parsing can exceed the size of the input: a parser compares all attributes of a tag with each
/// other, and a tree of elements is freed by recursion. These measures allow a text to be refused before a
/// parser sees it.
struct XmlBounds {
    int depth = 0;                ///< upper bound of the nesting of elements
    int longestTag = 0;           ///< bytes of the longest tag
    int longestText = 0;          ///< upper bound of the bytes of a text between two tags
    bool hasDocumentType = false; ///< a document type was found; the scan ends there

    /// Measures \a xml, whose encoding must have the bytes of ASCII for markup, as UTF-8 has.
    static XmlBounds of(const QByteArray& xml);
};

/// Returns whether the elements of an XML text nest deeper than \a limit.
///
/// Costs one scan of the text, and a streaming parse only if the scan cannot decide.
/// \return false also for a text that is not well-formed up to that depth: its parser reports that
bool nestsDeeperThan(const QString& xml, int limit);

} // namespace TOLVAN_NAMESPACE
