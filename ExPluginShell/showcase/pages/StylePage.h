#pragma once

#include "PageWidget.h"

class QGridLayout;
class QMainWindow;
class QMenu;

/// Every standard widget under the product's look, in the states that it can be in.
class StylePage : public PageWidget
{
    Q_OBJECT

public:
    explicit StylePage(QWidget* parent);

    /// The icon \a name of the tool bar's folder, with its image for disabled tools if there is one.
    static QIcon toolIcon(const char* name);

private:
    /// Keeps a property of \a object, its text if none is named, in the language of the application.
    template <class Object>
    Object* withText(Object* object, const char* source, const char* property = "text");

    QLayout* makeButtonColumn();
    QWidget* makePushButtons();
    QWidget* makeToolButtons();
    QWidget* makeChoices();
    void addStateNames(QGridLayout* grid);

    QLayout* makeFieldColumn();
    QWidget* makeTextFields();
    QWidget* makeNumberFields();
    QWidget* makeRanges();

    QLayout* makeViewColumn();
    QWidget* makeTabs();
    QWidget* makeTable();
    QWidget* makeTree();
    QWidget* makeList();
    QWidget* makeTextViews();
    QWidget* makeGroups();
    QWidget* makeToolBox();

    QLayout* makeWindowRow();
    QMainWindow* makeWindow();
    QMenu* makeMenu(QWidget* parent);
    QWidget* makeCalendar();
    QWidget* makeDialogEnd();
};

template <class Object>
Object* StylePage::withText(Object* object, const char* source, const char* property)
{
    translate(source, [object, property](const QString& text) { object->setProperty(property, text); });
    return object;
}
