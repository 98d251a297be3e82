#pragma once

#include <QObject>

namespace TOLVAN_NAMESPACE
{

/// Details of the product's look that style sheets have no rule for: softer placeholder texts, rows in the pop-up
/// of a combo box as high as those of lists, and dials drawn as the sliders are. Internal.
///
/// Watches the widgets of the application as long as it lives; without a style sheet it changes nothing. Dials
/// and delegates of derived classes keep their own drawing.
class ThemeDetails : public QObject
{
public:
    explicit ThemeDetails(QObject* parent);
    ~ThemeDetails() override;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace TOLVAN_NAMESPACE
