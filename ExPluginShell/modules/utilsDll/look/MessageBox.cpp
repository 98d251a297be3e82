#include "MessageBox.h"

#include "controls/IconViewer.h"
#include "frame/Logging.h"

#include <QGridLayout>
#include <QHash>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSpacerItem>
#include <QVBoxLayout>

using TOLVAN_NAMESPACE::CBaseDialog;
using TOLVAN_NAMESPACE::CIconViewer;

namespace
{

constexpr int boxWidth = 520;
constexpr int quitBoxHeight = 165;
constexpr QSize iconSize(34, 34);
constexpr QSize smallestButton(80, 36);

constexpr const char* informationIcon = "://icons/messagebox/info_dark_icon.svg";
constexpr const char* alertIcon = "://icons/messagebox/alert_dark_icon.svg";
constexpr const char* questionIcon = "://icons/messagebox/question_mark_dark_icon.svg";
constexpr const char* saveQuestionIcon = ":/icons/messagebox/question_mark_dark_icon.svg";

/// Returns the icon of this path. A drawing is read and rendered once for all boxes.
QIcon iconOf(const char* path)
{
    static QHash<QByteArray, QIcon> icons;
    QIcon& icon = icons[path];
    if (icon.isNull()) {
        icon = QIcon(QString::fromLatin1(path));
    }
    return icon;
}

} // namespace

QScopedPointer<CMessageBox> CMessageBox::m_scriptingInstance;

/// The widgets that every box has. The style sheet addresses them by name.
struct CMessageBox::Form {
    explicit Form(CMessageBox& box);

    QGridLayout* gridLayout;
    QVBoxLayout* contentLayout;
    CIconViewer* iconWidget;

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
class CMessageBox::Session
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
        m_box->setFixedSize(boxWidth, height);
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
}

CMessageBox::~CMessageBox() = default;

void CMessageBox::prepareContentWidget(CMessageBox& box, const QString& text)
{
    auto* const label = new QLabel;
    label->setObjectName(QStringLiteral("textLabel"));
    label->setWordWrap(true);
    label->setText(text);
    box.m_ui->contentLayout->addWidget(label);
}

void CMessageBox::setIcon(const QIcon& icon)
{
    m_ui->iconWidget->setSizeHint(iconSize);
    if (!icon.isNull()) {
        m_ui->iconWidget->setIcon(icon);
    }
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
    showSimpleMessageBox(parent, text, iconOf(informationIcon), tr("OK"), height);
}

void CMessageBox::warning(QWidget* parent, const QString& text, int height)
{
    showSimpleMessageBox(parent, text, iconOf(alertIcon), tr("Close"), height);
}

void CMessageBox::critical(QWidget* parent, const QString& text, int height)
{
    showSimpleMessageBox(parent, text, iconOf(alertIcon), tr("Close"), height);
}

QMessageBox::StandardButton CMessageBox::yesNoMessage(QWidget* parent, const QString& text, int height)
{
    Session session(parent, text, iconOf(questionIcon));
    auto* const row = createButtonLayout(session.box(), true);
    row->addStretch();
    auto* const yes = session.box().addButton(row, tr("Yes"), "yesButton");
    session.box().addButton(row, tr("No"), "noButton");
    yes->setDefault(true);
    return session.run(height) == yes ? QMessageBox::Yes : QMessageBox::No;
}

QMessageBox::StandardButton CMessageBox::saveDiscardCancelMessage(QWidget* parent, const QString& text,
                                                                  int height)
{
    Session session(parent, text, iconOf(saveQuestionIcon));
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

bool CMessageBox::rotateQuestion(QWidget* parent, const QString& text, int height)
{
    Session session(parent, text, iconOf(questionIcon));
    auto* const row = createButtonLayout(session.box(), true);
    row->addStretch();
    auto* const rotate = session.box().addButton(row, tr("Rotate"), "rotateButton");
    session.box().addButton(row, tr("Cancel"), "cancelButton");
    rotate->setDefault(true);
    return session.run(height) == rotate;
}

QMessageBox::StandardButton CMessageBox::backgroundProcessingCancelMessage(QWidget* parent,
                                                                           const QString& text)
{
    Session session(parent, text, iconOf(alertIcon));
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
