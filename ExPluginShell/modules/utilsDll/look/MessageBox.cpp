#include "MessageBox.h"

#include "controls/IconViewer.h"
#include "frame/Logging.h"
#include "look/AccessibleRoles.h"
#include "look/ButtonRow.h"
#include "look/MessageKinds.h"
#include "look/WrappingLabel.h"

#include <QAccessible>
#include <QGridLayout>
#include <QIcon>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSpacerItem>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <limits>

using TOLVAN_NAMESPACE::CBaseDialog;
using TOLVAN_NAMESPACE::CIconViewer;
using TOLVAN_NAMESPACE::messageIcon;
using TOLVAN_NAMESPACE::MessageKind;
using TOLVAN_NAMESPACE::WrappingLabel;

namespace
{

constexpr int boxWidth = 520;
constexpr int quitBoxHeight = 165;
constexpr QSize iconSize(34, 34);
constexpr QSize smallestButton(80, 36);

constexpr int fittingHeight = std::numeric_limits<int>::min(); // stands for "as the text needs it"
constexpr double largestShare = 0.8;                           // of the screen's height

} // namespace

QScopedPointer<CMessageBox> CMessageBox::m_scriptingInstance;

/// The widgets that every box has. The style sheet addresses them by name.
struct Q_DECL_HIDDEN CMessageBox::Form {
    explicit Form(CMessageBox& box);

    QGridLayout* gridLayout;
    QVBoxLayout* contentLayout;
    CIconViewer* iconWidget;
    WrappingLabel* text = nullptr;

private:
    QWidget* makeBackground(CMessageBox& box);
    void makeContent(QWidget* background);
    void makeIcon(QWidget* background);
};

CMessageBox::Form::Form(CMessageBox& box)
{
    if (box.objectName().isEmpty()) {
        box.setObjectName(QStringLiteral("CMessageBox"));
    }
    box.resize(504, 243);
    box.setWindowTitle(tr("Dialog"));
    auto* const background = makeBackground(box);
    makeContent(background);
    makeIcon(background);
    gridLayout->addItem(new QSpacerItem(20, 40, QSizePolicy::Minimum, QSizePolicy::Expanding), 1, 1);
    QMetaObject::connectSlotsByName(&box);
}

QWidget* CMessageBox::Form::makeBackground(CMessageBox& box)
{
    auto* const layout = new QHBoxLayout(&box);
    layout->setObjectName(QStringLiteral("horizontalLayout"));
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const background = new QWidget(&box);
    background->setObjectName(QStringLiteral("wBackgroundWidget"));
    layout->addWidget(background);
    gridLayout = new QGridLayout(background);
    gridLayout->setObjectName(QStringLiteral("gridLayout"));
    gridLayout->setHorizontalSpacing(35);
    gridLayout->setVerticalSpacing(0);
    gridLayout->setContentsMargins(28, 24, 21, 20);
    gridLayout->setColumnStretch(1, 1); // a short text stays beside the icon
    return background;
}

void CMessageBox::Form::makeContent(QWidget* background)
{
    auto* const content = new QWidget(background);
    content->setObjectName(QStringLiteral("contentWidget"));
    auto* const layout = new QVBoxLayout(content);
    layout->setObjectName(QStringLiteral("verticalLayout_2"));
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    contentLayout = new QVBoxLayout;
    contentLayout->setObjectName(QStringLiteral("contentLayout"));
    contentLayout->setSpacing(0);
    layout->addLayout(contentLayout);
    gridLayout->addWidget(content, 0, 1);
}

void CMessageBox::Form::makeIcon(QWidget* background)
{
    iconWidget = new CIconViewer(background);
    iconWidget->setObjectName(QStringLiteral("iconWidget"));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(iconWidget->sizePolicy().hasHeightForWidth());
    iconWidget->setSizePolicy(policy);
    gridLayout->addWidget(iconWidget, 0, 0);
}

/// Shows one box. The box is on the heap because its parent may delete it while it is open.
class Q_DECL_HIDDEN CMessageBox::Session
{
public:
    Session(QWidget* parent, const QString& text, const QIcon& icon)
        : m_box(new CMessageBox(parent))
    {
        prepareContentWidget(*m_box, text);
        m_box->setIcon(icon);
    }
    ~Session() { delete m_box; }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    CMessageBox& box() { return *m_box; }

    /// Shows the box until the user answers.
    /// \return the clicked button, which may have been deleted; null if there was none
    const QPushButton* run(int height)
    {
        m_box->fit(height);
        m_box->exec();
        return m_box ? m_box->m_clickedButton : nullptr;
    }

private:
    QPointer<CMessageBox> m_box;
};

CMessageBox::CMessageBox(QWidget* parent)
    : CBaseDialog(parent)
    , m_ui(new Form(*this))
{
    TOLVAN_NAMESPACE::installAccessibleRoles();
}

CMessageBox::~CMessageBox() = default;

void CMessageBox::prepareContentWidget(CMessageBox& box, const QString& text)
{
    auto* const label = new WrappingLabel;
    label->setObjectName(QStringLiteral("textLabel"));
    label->setText(text);
    box.m_ui->contentLayout->addWidget(label);
    box.m_ui->text = label;
    box.setAccessibleDescription(label->plainText());
    auto* const copy = new QShortcut(QKeySequence::Copy, &box);
    connect(copy, SIGNAL(activated()), label, SLOT(copy()));
}

void CMessageBox::setIcon(const QIcon& icon)
{
    m_ui->iconWidget->setSizeHint(iconSize);
    if (!icon.isNull()) {
        m_ui->iconWidget->setIcon(icon);
    }
    const QString name = TOLVAN_NAMESPACE::messageKindName(icon);
    m_ui->iconWidget->setAccessibleName(name);
    setAccessibleName(name);
}

/// Gives the box its height. A text that needs more than that scrolls.
void CMessageBox::fit(int height)
{
    ensurePolished();
    for (QWidget* const widget : findChildren<QWidget*>()) {
        widget->ensurePolished(); // the style sheet decides on the fonts
    }
    const auto buttons = findChildren<QPushButton*>();
    TOLVAN_NAMESPACE::fitButtonRow(*m_ui->gridLayout, *buttons.constFirst()->parentWidget(), boxWidth);
    const int available = int(screen()->availableGeometry().height() * largestShare);
    const bool fits = height == fittingHeight;
    const int wanted = fits ? qMin(layout()->totalHeightForWidth(boxWidth), available) : height;
    setFixedSize(boxWidth, wanted);
    if (m_ui->gridLayout->minimumHeightForWidth(boxWidth) > wanted) {
        m_ui->text->makeScrollable(*m_ui->contentLayout);
    }
    const auto chosen = std::find_if(buttons.begin(), buttons.end(), std::mem_fn(&QPushButton::isDefault));
    (*chosen)->setFocus(); // every box has a default button
}

void CMessageBox::showEvent(QShowEvent* event)
{
    CBaseDialog::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

QHBoxLayout* CMessageBox::createButtonLayout(CMessageBox& box, bool besideIcon)
{
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setSpacing(11);
    layout->setContentsMargins(0, 0, 0, 0);
    if (besideIcon) {
        box.m_ui->gridLayout->addWidget(row, 2, 1);
    } else {
        box.m_ui->gridLayout->addWidget(row, 2, 0, 2, -1);
    }
    return layout;
}

QPushButton* CMessageBox::addButton(QHBoxLayout* row, const QString& text, const char* name)
{
    auto* const button = new QPushButton(text);
    button->setObjectName(QString::fromLatin1(name));
    button->setMinimumSize(smallestButton);
    row->addWidget(button);
    connect(button, SIGNAL(clicked(bool)), this, SLOT(onButtonClicked()));
    return button;
}

void CMessageBox::showSimpleMessageBox(QWidget* parent, const QString& text, const QIcon& icon,
                                       const QString& buttonText, int height)
{
    Session session(parent, text, icon);
    auto* const row = createButtonLayout(session.box(), false);
    row->addStretch();
    session.box().addButton(row, buttonText, "mbSipleButton")->setDefault(true);
    row->addStretch();
    session.run(height);
}

void CMessageBox::information(QWidget* parent, const QString& text, int height)
{
    showSimpleMessageBox(parent, text, messageIcon(MessageKind::Information), tr("OK"), height);
}

void CMessageBox::fittingInformation(QWidget* parent, const QString& text)
{
    information(parent, text, fittingHeight);
}

void CMessageBox::warning(QWidget* parent, const QString& text, int height)
{
    showSimpleMessageBox(parent, text, messageIcon(MessageKind::Warning), tr("Close"), height);
}

void CMessageBox::fittingWarning(QWidget* parent, const QString& text)
{
    warning(parent, text, fittingHeight);
}

void CMessageBox::critical(QWidget* parent, const QString& text, int height)
{
    showSimpleMessageBox(parent, text, messageIcon(MessageKind::Error), tr("Close"), height);
}

void CMessageBox::fittingCritical(QWidget* parent, const QString& text)
{
    critical(parent, text, fittingHeight);
}

QMessageBox::StandardButton CMessageBox::yesNoMessage(QWidget* parent, const QString& text, int height)
{
    Session session(parent, text, messageIcon(MessageKind::Question));
    auto* const row = createButtonLayout(session.box(), true);
    row->addStretch();
    auto* const yes = session.box().addButton(row, tr("Yes"), "yesButton");
    session.box().addButton(row, tr("No"), "noButton");
    yes->setDefault(true);
    return session.run(height) == yes ? QMessageBox::Yes : QMessageBox::No;
}

QMessageBox::StandardButton CMessageBox::fittingYesNoMessage(QWidget* parent, const QString& text)
{
    return yesNoMessage(parent, text, fittingHeight);
}

QMessageBox::StandardButton CMessageBox::saveDiscardCancelMessage(QWidget* parent, const QString& text,
                                                                  int height)
{
    Session session(parent, text, messageIcon(MessageKind::SaveQuestion));
    auto* const row = createButtonLayout(session.box(), true);
    auto* const discard = session.box().addButton(row, tr("Don't save"), "discardButton");
    row->addStretch();
    auto* const save = session.box().addButton(row, tr("Save"), "saveButton");
    session.box().addButton(row, tr("Cancel"), "cancelButton");
    save->setDefault(true);
    const auto* const clicked = session.run(height);
    if (clicked == save) {
        return QMessageBox::Save;
    }
    return clicked == discard ? QMessageBox::Discard : QMessageBox::Cancel;
}

QMessageBox::StandardButton CMessageBox::fittingSaveDiscardCancelMessage(QWidget* parent, const QString& text)
{
    return saveDiscardCancelMessage(parent, text, fittingHeight);
}

bool CMessageBox::rotateQuestion(QWidget* parent, const QString& text, int height)
{
    Session session(parent, text, messageIcon(MessageKind::Question));
    auto* const row = createButtonLayout(session.box(), true);
    row->addStretch();
    auto* const rotate = session.box().addButton(row, tr("Rotate"), "rotateButton");
    session.box().addButton(row, tr("Cancel"), "cancelButton");
    rotate->setDefault(true);
    return session.run(height) == rotate;
}

bool CMessageBox::fittingRotateQuestion(QWidget* parent, const QString& text)
{
    return rotateQuestion(parent, text, fittingHeight);
}

QMessageBox::StandardButton CMessageBox::backgroundProcessingCancelMessage(QWidget* parent,
                                                                           const QString& text)
{
    Session session(parent, text, messageIcon(MessageKind::Warning));
    auto* const row = createButtonLayout(session.box(), true);
    row->addStretch();
    session.box().addButton(row, tr("Don't quit"), "dontQuitButton");
    auto* const quit = session.box().addButton(row, tr("Quit without saving"), "quitWithoutSavingButton");
    quit->setDefault(true);
    return session.run(quitBoxHeight) == quit ? QMessageBox::Discard : QMessageBox::Cancel;
}

void CMessageBox::onButtonClicked()
{
    m_clickedButton = qobject_cast<QPushButton*>(sender());
    done(0);
}

void CMessageBox::setRotateQuestion(bool predefinedValue)
{
    m_rotateAnswers.append(predefinedValue);
}

void CMessageBox::setYesNoMessage(bool predefinedButtonPressed)
{
    m_yesNoAnswers.append(predefinedButtonPressed ? QMessageBox::Yes : QMessageBox::No);
}

void CMessageBox::setYesNoMessageWithCheckBox(bool, bool) {}

void CMessageBox::setSaveDiscardCancelMessage(int predefinedButton)
{
    switch (predefinedButton) {
    case QMessageBox::Save:
    case QMessageBox::Discard:
    case QMessageBox::Cancel:
        m_saveDiscardCancelAnswers.append(static_cast<QMessageBox::StandardButton>(predefinedButton));
        break;
    default:
        TOLVAN_NAMESPACE::Logging::reportAssertion("CMessageBox::setSaveDiscardCancelMessage", "MessageBox",
                                                   276);
    }
}
