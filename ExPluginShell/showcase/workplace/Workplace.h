#pragma once

#include "Correction.h"
#include "pages/PageWidget.h"
#include "Photo.h"
#include "RulesMachine.h"

#include <utilsDll/FileManagement.h>
#include <utilsDll/ProgressBox.h>

#include <array>

class Canvas;
class ToolPanel;

/// The page the showcase opens on: a photo, the correction tools and what becomes of the result.
///
/// The tools obey the rules of the product, see RulesMachine. Corrections are carried out on a small picture
/// while one works, and on the full one when "Apply" is pressed. The pictures of the canvas, saving, packing and
/// presets stand in WorkplaceFiles.cpp.
class Workplace : public PageWidget
{
    Q_OBJECT

public:
    explicit Workplace(QWidget* parent);

    void prepareForPicture() override;
    /// What the user does: presses the button of a tool, or confirms, cancels or resets it.
    void perform(const QString& module, const QString& activity);

protected:
    void languageChanged() override;

private Q_SLOTS:
    void replay(); // also a delayed call

private:
    // Making the page
    QWidget* makeToolBar();
    QHBoxLayout* makeCommands();
    QWidget* makeSide();
    QToolButton* makeTool(const QString& icon, const char* text, int size);
    void connectParts();

    // The tools
    void toolClicked(int tool);
    void performOnCurrent(const QString& activity);
    void touch();
    void carryOut(const RulesMachine::Rule& rule);
    void showTools();
    Step* shownStep();
    void resetStep(Tool tool);

    // The picture
    void setPhoto(const Photo& photo);
    void forgetResult();
    void undo();
    void resetAll();
    QVector<Step> steps() const;
    void renewBase();
    void showPicture();
    void compare();

    // WorkplaceFiles.cpp
    void open();
    void apply();
    void showResult(const QImage& result, qint64 milliseconds);
    void save();
    void pack();
    void trashOrRestore();
    void savePreset();
    void usePreset(int index);
    void listPresets();
    CProgressBox::Result run(CQRunnableItem& item, const QString& title);

    RulesMachine m_rules;
    Photo m_photo;
    std::array<Step, toolCount> m_steps;
    QVector<Step> m_applied;
    QImage m_original; ///< of the size of the canvas
    QImage m_base;     ///< with all applied steps
    QImage m_result;   ///< the full picture; null until it was computed
    QStringList m_saved;
    TOLVAN_NAMESPACE::TrashReceipt m_trashed; ///< of the last saved picture, while it is in the recycle bin

    Canvas* m_canvas = nullptr;
    ToolPanel* m_panel = nullptr;
    QButtonGroup* m_tools;
    QToolButton* m_undo = nullptr;
    QToolButton* m_grid = nullptr;
    QToolButton* m_compare = nullptr;
    QToolButton* m_preview = nullptr;
    QComboBox* m_presets = nullptr;
    QPushButton* m_apply = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_pack = nullptr;
    QPushButton* m_trash = nullptr;
    QLabel* m_rule;
    QLabel* m_history = nullptr;
};
