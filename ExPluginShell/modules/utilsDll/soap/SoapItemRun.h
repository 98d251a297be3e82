#pragma once

#include "qtsoapsimpletype.h"

#include <memory>
#include <vector>

namespace TOLVAN_NAMESPACE
{

/// The simple items of a long array in blocks, which takes half the memory of single ones. Items stay at their
/// addresses. Internal, not installed.
class SoapItemRun
{
public:
    /// Position of the first item: shorter arrays have no run.
    static constexpr int Start = 256;

    int size() const { return m_size; }

    /// Returns whether the run has an item at the absolute position \a position.
    bool has(int position) const { return position >= Start && position - Start < m_size; }

    /// Returns the item at \a position, which must be there.
    QtSoapSimpleType& at(int position) const
    {
        const int index = position - Start;
        return m_blocks[static_cast<std::size_t>(index / Block)][static_cast<std::size_t>(index % Block)];
    }

    void append(const QtSoapSimpleType& item)
    {
        if (m_size % Block == 0) {
            m_blocks.push_back(std::make_unique<QtSoapSimpleType[]>(Block));
        }
        at(Start + m_size++) = item;
    }

private:
    static constexpr int Block = 256;

    std::vector<std::unique_ptr<QtSoapSimpleType[]>> m_blocks;
    int m_size = 0;
};

} // namespace TOLVAN_NAMESPACE
