// Draws every icon of a folder tree, by folder and with its name, at real size and enlarged, on the dark
// ground.
//
//     contact_sheet ICON_DIR PALETTE_JSON OUT_PNG [--pixels]
//
// The pages become OUT-1.png, OUT-2.png ... With --pixels the enlargement repeats the pixels of the real
// size, which shows blur. The images are rendered by Qt's SVG renderer, as in the product.

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

#include <cstdio>
#include <vector>

namespace
{

constexpr int cellWidth = 148;
constexpr int cellHeight = 112;
constexpr int enlarged = 72;
constexpr int columns = 9;
constexpr int margin = 16;
constexpr int headerHeight = 24;
constexpr int pageHeight = 2100;

struct Block {
    QString folder;
    QStringList names;

    int columnCount() const { return qMin(columns, names.size()); }
    int height() const { return headerHeight + (names.size() + columns - 1) / columns * cellHeight; }
};

struct Placed {
    Block block;
    int page;
    QPoint position;
};

using Colours = QJsonObject;

QColor colour(const Colours& colours, const char* name)
{
    return QColor(colours.value(QLatin1String(name)).toString());
}

std::vector<Block> blocksOf(const QDir& root)
{
    QMap<QString, QStringList> folders;
    QDirIterator files(root.path(), {QStringLiteral("*.svg"), QStringLiteral("*.png")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString relative = root.relativeFilePath(files.next());
        const int slash = relative.lastIndexOf(QLatin1Char('/'));
        folders[relative.left(qMax(slash, 0))] << relative.mid(slash + 1);
    }
    std::vector<Block> blocks;
    for (auto folder = folders.begin(); folder != folders.end(); ++folder) {
        folder.value().sort();
        blocks.push_back({folder.key(), folder.value()});
    }
    return blocks;
}

// Folders stand side by side while they fit; a row of them is as high as its highest.
std::vector<Placed> place(const std::vector<Block>& blocks, int& pages)
{
    std::vector<Placed> placed;
    int column = 0;
    int top = margin;
    int rowHeight = 0;
    pages = 1;
    for (const Block& block : blocks) {
        if (column > 0 && column + block.columnCount() > columns) {
            top += rowHeight;
            column = rowHeight = 0;
        }
        if (column == 0 && top > margin && top + block.height() > pageHeight - margin) {
            ++pages;
            top = margin;
        }
        placed.push_back({block, pages - 1, {margin + column * cellWidth, top}});
        rowHeight = qMax(rowHeight, block.height());
        column += block.columnCount();
    }
    return placed;
}

// A drawing or a picture, at any size; an unreadable file has no size.
class Image
{
public:
    explicit Image(const QString& file)
    {
        if (file.endsWith(QLatin1String(".svg"))) {
            m_drawing.load(file);
        } else {
            m_picture.load(file);
        }
    }

    QSize size() const { return m_drawing.isValid() ? m_drawing.defaultSize() : m_picture.size(); }

    QImage at(const QSize& size)
    {
        if (!m_drawing.isValid()) {
            return m_picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        m_drawing.render(&painter);
        return image;
    }

private:
    QSvgRenderer m_drawing;
    QImage m_picture;
};

// A long name breaks after an underscore, near its middle.
QString inTwoLines(const QString& name)
{
    if (name.size() <= 20) {
        return name;
    }
    int best = -1;
    for (int at = name.indexOf(QLatin1Char('_')); at >= 0; at = name.indexOf(QLatin1Char('_'), at + 1)) {
        if (best < 0 || qAbs(at - name.size() / 2) < qAbs(best - name.size() / 2)) {
            best = at;
        }
    }
    return best < 0 ? name : name.left(best + 1) + QLatin1Char('\n') + name.mid(best + 1);
}

// Shadows and marks on the picture are enlarged on a light ground: they have to work there too.
bool liesOnPictures(const QString& file)
{
    static const QRegularExpression pattern(
        QStringLiteral("shadow|/cursors/|/crop/|_(centre|rotation)_handle|horizon_handle|focus_line"),
        QRegularExpression::CaseInsensitiveOption);
    return pattern.match(file).hasMatch();
}

bool drawCell(QPainter& painter, const QString& file, const QRect& cell, const Colours& colours, bool pixels)
{
    Image image(file);
    const QSize real = image.size();
    if (real.isEmpty()) {
        return false;
    }
    const QImage exact = image.at(real);
    const QRect area(cell.left() + 4, cell.top() + 2, cell.width() - 8, enlarged);
    QSize zoomed = real.scaled(enlarged, enlarged, Qt::KeepAspectRatio);
    const bool beside = real.width() + zoomed.width() + 8 <= area.width();
    if (beside) {
        painter.drawImage(area.left(), area.center().y() - real.height() / 2, exact);
    } else {
        zoomed = real.scaled(area.size(), Qt::KeepAspectRatio);
    }
    QRect target(QPoint(0, 0), zoomed);
    target.moveCenter(area.center());
    if (beside) {
        target.moveRight(area.right() - 6);
    }
    painter.setPen(colour(colours, "line"));
    painter.setBrush(liesOnPictures(file) ? colour(colours, "glyph") : Qt::transparent);
    painter.drawRect(target.adjusted(-1, -1, 0, 0));
    painter.drawImage(target, pixels ? exact : image.at(zoomed));
    painter.setPen(colour(colours, "text_soft"));
    painter.drawText(cell.adjusted(0, enlarged + 6, -6, 0), Qt::AlignLeft | Qt::AlignTop,
                     inTwoLines(QFileInfo(file).completeBaseName()));
    return true;
}

bool drawBlock(QPainter& painter, const Placed& placed, const QDir& root, const Colours& colours, bool pixels)
{
    const QString title = placed.block.folder.isEmpty() ? QStringLiteral("icons") : placed.block.folder;
    QFont bold = painter.font();
    bold.setBold(true);
    painter.save();
    painter.setFont(bold);
    painter.setPen(colour(colours, "accent_bright"));
    painter.drawText(placed.position + QPoint(0, 14),
                     QStringLiteral("%1  (%2)").arg(title).arg(placed.block.names.size()));
    painter.restore();
    bool good = true;
    for (int index = 0; index < placed.block.names.size(); ++index) {
        const QPoint corner = placed.position + QPoint(index % columns * cellWidth,
                                                       headerHeight + index / columns * cellHeight);
        const QString file = QDir(root.filePath(placed.block.folder)).filePath(placed.block.names[index]);
        if (!drawCell(painter, file, QRect(corner, QSize(cellWidth, cellHeight)), colours, pixels)) {
            std::fprintf(stderr, "not readable: %s\n", qPrintable(file));
            good = false;
        }
    }
    return good;
}

bool drawPage(const std::vector<Placed>& blocks, int page, const QDir& root, const Colours& colours,
              bool pixels, const QString& out)
{
    int bottom = 0;
    for (const Placed& block : blocks) {
        if (block.page == page) {
            bottom = qMax(bottom, block.position.y() + block.block.height());
        }
    }
    QImage image(2 * margin + columns * cellWidth, bottom + margin, QImage::Format_RGB32);
    image.fill(colour(colours, "ground"));
    QPainter painter(&image);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    painter.setFont(font);
    bool good = true;
    for (const Placed& block : blocks) {
        if (block.page == page) {
            good = drawBlock(painter, block, root, colours, pixels) && good;
        }
    }
    painter.end();
    return image.save(out, "PNG", 0) && good; // 0: smallest file
}

} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 4) {
        std::fprintf(stderr, "usage: contact_sheet ICON_DIR PALETTE_JSON OUT_PNG [--pixels]\n");
        return 2;
    }
    QFile paletteFile(arguments[2]);
    if (!paletteFile.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "not readable: %s\n", qPrintable(arguments[2]));
        return 1;
    }
    const Colours colours = QJsonDocument::fromJson(paletteFile.readAll()).object();
    const QDir root(QDir(arguments[1]).absolutePath());
    const bool pixels = arguments.contains(QStringLiteral("--pixels"));
    int pages = 0;
    const std::vector<Placed> placed = place(blocksOf(root), pages);
    const QFileInfo out(arguments[3]);
    bool good = !placed.empty();
    for (int page = 0; page < pages; ++page) {
        const QString name =
            QStringLiteral("%1/%2-%3.png").arg(out.path(), out.completeBaseName()).arg(page + 1);
        good = drawPage(placed, page, root, colours, pixels, name) && good;
    }
    return good ? 0 : 1;
}
