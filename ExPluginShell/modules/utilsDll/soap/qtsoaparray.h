#pragma once

#include "qtsoaptype.h"

#include <QHash>
#include <QVector>

namespace TOLVAN_NAMESPACE
{

/// \brief Items at the positions of 1 to 5 dimensions; positions may be left empty.
///
/// Beside its coordinates every item has an absolute position, row-major: the last coordinate runs fastest, and
/// a 3x2 array holds row 0 at 0 and 1. Memory is used for the items present, not for the size claimed.
///
/// The type of the items is that given to the constructor, or else that of the first item. Items of another type
/// are kept, nil ones and structs among them; an array that holds some is written as one of `xsd:anyType`. An
/// item outside the size is refused: it is deleted, errorString() returns the reason and a warning is written.
class UTILSDLL_EXPORT QtSoapArray : public QtSoapType
{
public:
    /// One dimension without size, which grows; the first item decides the type.
    QtSoapArray();

    /// \brief An array called \a name of items of \a type.
    ///
    /// As many dimensions as sizes are given; -1 ends the list. Without any there is one dimension, which
    /// grows.
    QtSoapArray(const QtSoapQName& name, QtSoapType::Type type = Other, int size0 = -1, int size1 = -1,
                int size2 = -1, int size3 = -1, int size4 = -1);

    /// A copy with items of its own.
    QtSoapArray(const QtSoapArray& copy);

    /// Becomes a copy of \a copy, with items of its own.
    QtSoapArray& operator=(const QtSoapArray& copy);
    ~QtSoapArray() override;

    /// Removes items and dimensions: what stays is one dimension that grows, and the item type.
    void clear() override;

    /// Reads the element \a node; false, and errorString() says why, when sizes or positions contradict each
    /// other or it holds a text. What the array then holds is not defined.
    bool parse(QDomNode node) override;

    /// Always true.
    bool isValid() const override;

    /// Number of items present, not the declared size.
    int count() const override;

    /// The item at an absolute position, which belongs to the array; an invalid value where there is none.
    QtSoapType& at(int pos0);
    const QtSoapType& at(int pos0) const; ///< \copydoc at(int)

    /// The item at two coordinates of a two-dimensional array, and so on up to five; an invalid value where
    /// there is none, and for an array of another rank.
    QtSoapType& at(int pos0, int pos1);
    const QtSoapType& at(int pos0, int pos1) const;                               ///< \copydoc at(int,int)
    QtSoapType& at(int pos0, int pos1, int pos2);                                 ///< \copydoc at(int,int)
    const QtSoapType& at(int pos0, int pos1, int pos2) const;                     ///< \copydoc at(int,int)
    QtSoapType& at(int pos0, int pos1, int pos2, int pos3);                       ///< \copydoc at(int,int)
    const QtSoapType& at(int pos0, int pos1, int pos2, int pos3) const;           ///< \copydoc at(int,int)
    QtSoapType& at(int pos0, int pos1, int pos2, int pos3, int pos4);             ///< \copydoc at(int,int)
    const QtSoapType& at(int pos0, int pos1, int pos2, int pos3, int pos4) const; ///< \copydoc at(int,int)

    QtSoapType& operator[](int i) override;
    const QtSoapType& operator[](int i) const override;
    QtSoapType& operator[](const QString& name) override;
    const QtSoapType& operator[](const QString& name) const override;
    QtSoapType& operator[](const QtSoapQName& name) override;
    const QtSoapType& operator[](const QtSoapQName& name) const override;

    /// Adds \a item, which comes from `new`, behind the last one of a one-dimensional array and takes
    /// ownership; refused, and deleted, on other ranks.
    void append(QtSoapType* item);

    /// Puts \a item at an absolute position, in place of what is there, and takes ownership.
    void insert(int pos0, QtSoapType* item);

    /// Puts \a item at two coordinates of a two-dimensional array, and so on up to five; takes ownership.
    void insert(int pos0, int pos1, QtSoapType* item);
    void insert(int pos0, int pos1, int pos2, QtSoapType* item); ///< \copydoc insert(int,int,QtSoapType*)
    void insert(int pos0, int pos1, int pos2, int pos3,
                QtSoapType* item); ///< \copydoc insert(int,int,QtSoapType*)
    void insert(int pos0, int pos1, int pos2, int pos3, int pos4,
                QtSoapType* item); ///< \copydoc insert(int,int,QtSoapType*)

    /// The element with `arrayType` and the items; an array with gaps gives every item its `position`.
    QDomElement toDomElement(QDomDocument doc) const override;

protected:
    /// The sizes as `arrayType` has them, "[2,3]"; for a growing dimension the size that the items need.
    QString arraySizeString() const;

    /// The item type as `arrayType` has it, "xsd:int"; "xsd:anyType" for structs, arrays and mixed items.
    QString arrayTypeString() const;

    QHash<int, QtSmartPtr<QtSoapType>> array; ///< the items by absolute position
    int lastIndex;                            ///< the highest position in use, -1 when there is none

private:
    friend class QtSoapArrayIterator;
    friend class SoapReferences;
    friend class SoapEncoder;
    friend class SoapValueReader;

    /// Absolute position of \a coordinates; -1 when they are not of this rank or outside.
    int absolute(const QVector<int>& coordinates) const;
    QVector<int> coordinates(int position) const;
    const QtSoapType& find(int position) const;
    QtSoapType& find(int position);
    QVector<int> positions() const; ///< ascending
    bool hasGaps() const;
    void place(int position, QtSoapType* item);
    void adopt(const QtSoapType& item);
    void store(int position, const QtSmartPtr<QtSoapType>& item);
    const QtSoapType* named(const QtSoapQName& name) const;
    qint64 capacity() const; ///< number of positions; -1 when the first dimension grows

    bool has(int position) const;
    int runSize() const;

    QVector<int> m_sizes{-1}; ///< one per dimension; only the first may be -1: it grows
    Type m_itemType = Other;
    bool m_mixed = false; ///< written as an array of any type

    /// The items beyond the first ones of a long array that was read; an item in `array` goes before them.
    std::shared_ptr<class SoapItemRun> m_run;
    int m_covered = 0; ///< items of the run that one in `array` has replaced
};

} // namespace TOLVAN_NAMESPACE
