#include "picturedialog.h"

#include "export/picturewriter.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>

namespace {

constexpr char folderKey[] = "picture/folder";
constexpr char formatKey[] = "picture/format";
constexpr char unitKey[] = "picture/unit";
constexpr char widthKey[] = "picture/width";
constexpr char heightKey[] = "picture/height";
constexpr char resolutionKey[] = "picture/resolution";
constexpr char transparentKey[] = "picture/transparent";

constexpr double millimetresPerInch = 25.4;
constexpr double mostPixels = 30000.0;
constexpr int usualResolution = 300;

QString formatName(const QString& suffix)
{
    const QMap<QString, QString> names{{"jpg", "JPEG"}, {"tif", "TIFF"}, {"webp", "WebP"}};
    return names.value(suffix, suffix.toUpper());
}

/// The suffix that stands in the list of formats; empty for one that cannot be written.
QString listedSuffix(const QString& path)
{
    static const QMap<QString, QString> longer{{"jpeg", "jpg"}, {"tiff", "tif"}};
    QString suffix = QFileInfo(path).suffix().toLower();
    suffix = longer.value(suffix, suffix);
    return Zel3D::PictureWriter::suffixes().contains(suffix) ? suffix : QString();
}

} // namespace

PictureDialog::PictureDialog(const QString& name, const QSize& window, QWidget* parent)
    : QDialog(parent), m_window(window)
{
    setWindowTitle(tr("Save picture"));
    auto* form = new QFormLayout(this);
    addFile(*form);
    addSize(*form);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &PictureDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PictureDialog::reject);
    form->addRow(buttons);
    restore(name);
}

void PictureDialog::addFile(QFormLayout& form)
{
    m_path = new QLineEdit;
    m_path->setObjectName("path");
    m_path->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    auto* browse = new QPushButton(tr("&Browse..."));
    browse->setAutoDefault(false);
    connect(browse, &QPushButton::clicked, this, &PictureDialog::browse);
    auto* file = new QHBoxLayout;
    file->addWidget(m_path, 1);
    file->addWidget(browse);
    form.addRow(tr("&File:"), file);
    qobject_cast<QLabel*>(form.labelForField(file))->setBuddy(m_path);

    m_format = new QComboBox;
    const QStringList suffixes = Zel3D::PictureWriter::suffixes();
    for (const QString& suffix : suffixes)
        m_format->addItem(formatName(suffix), suffix);
    form.addRow(tr("F&ormat:"), m_format);
    connect(m_format, qOverload<int>(&QComboBox::activated), this, &PictureDialog::takeFormat);
    connect(m_path, &QLineEdit::textChanged, this, &PictureDialog::followSuffix);
}

void PictureDialog::addSize(QFormLayout& form)
{
    m_width = new QDoubleSpinBox;
    m_width->setObjectName("width");
    m_height = new QDoubleSpinBox;
    m_height->setObjectName("height");
    m_unit = new QComboBox;
    m_unit->setObjectName("unit");
    m_unit->addItems({tr("as the window"), tr("pixels"), tr("mm")});
    connect(m_unit, qOverload<int>(&QComboBox::currentIndexChanged), this, &PictureDialog::takeUnit);
    auto* size = new QHBoxLayout;
    size->addWidget(m_width, 1);
    size->addWidget(new QLabel(QStringLiteral("\u00d7")));
    size->addWidget(m_height, 1);
    size->addWidget(m_unit);
    form.addRow(tr("S&ize:"), size);
    qobject_cast<QLabel*>(form.labelForField(size))->setBuddy(m_width);

    m_resolution = new QSpinBox;
    m_resolution->setObjectName("resolution");
    m_resolution->setRange(10, 2400);
    m_resolution->setSuffix(tr(" dpi"));
    form.addRow(tr("&Resolution:"), m_resolution);
    m_transparent = new QCheckBox(tr("&Transparent background"));
    form.addRow(QString(), m_transparent);
}

void PictureDialog::restore(const QString& name)
{
    const QSettings settings;
    m_resolution->setValue(settings.value(resolutionKey, usualResolution).toInt());
    m_transparent->setChecked(settings.value(transparentKey).toBool());
    m_unit->setCurrentIndex(settings.value(unitKey, int(Window)).toInt());
    takeUnit();
    if (unit() != Window) {
        m_width->setValue(settings.value(widthKey, m_width->value()).toDouble());
        m_height->setValue(settings.value(heightKey, m_height->value()).toDouble());
    }
    const QString format = settings.value(formatKey, "png").toString();
    const QString folder = settings.value(folderKey, QDir::homePath()).toString();
    m_path->setText(QDir::toNativeSeparators(QDir(folder).filePath(name + '.' + format)));
    m_path->setSelection(m_path->text().size() - name.size() - format.size() - 1, name.size());
}

void PictureDialog::browse()
{
    QStringList patterns;
    const QStringList suffixes = Zel3D::PictureWriter::suffixes();
    for (const QString& suffix : suffixes)
        patterns.append("*." + suffix);
    const QString chosen = QFileDialog::getSaveFileName(this, windowTitle(), path(),
                                                        tr("Pictures (%1)").arg(patterns.join(' ')));
    if (chosen.isEmpty())
        return;
    m_path->setText(QDir::toNativeSeparators(chosen));
    m_replaced = path();
}

void PictureDialog::takeFormat()
{
    QString text = m_path->text();
    if (!listedSuffix(text).isEmpty())
        text.chop(QFileInfo(text).suffix().size() + 1);
    m_path->setText(text + '.' + m_format->currentData().toString());
}

void PictureDialog::followSuffix()
{
    const QString suffix = listedSuffix(m_path->text());
    if (!suffix.isEmpty())
        m_format->setCurrentIndex(m_format->findData(suffix));
}

PictureDialog::Unit PictureDialog::unit() const
{
    return static_cast<Unit>(m_unit->currentIndex());
}

double PictureDialog::pixelsPerUnit(Unit of) const
{
    return of == Millimetres ? m_resolution->value() / millimetresPerInch : 1.0;
}

void PictureDialog::takeUnit()
{
    const double factor = pixelsPerUnit(m_shownUnit) / pixelsPerUnit(unit());
    const QSizeF size =
        unit() == Window ? QSizeF(m_window) : QSizeF(m_width->value() * factor, m_height->value() * factor);
    m_shownUnit = unit();
    for (QDoubleSpinBox* side : {m_width, m_height}) {
        side->setDecimals(m_shownUnit == Millimetres ? 1 : 0);
        side->setRange(1.0, mostPixels);
        side->setEnabled(m_shownUnit != Window);
        side->setValue(side == m_width ? size.width() : size.height());
    }
}

QString PictureDialog::path() const
{
    const QString text = QDir::fromNativeSeparators(m_path->text());
    return QFileInfo(text).suffix().isEmpty() ? text + '.' + m_format->currentData().toString() : text;
}

Zel3D::PictureOptions PictureDialog::options() const
{
    Zel3D::PictureOptions options;
    const QSizeF size(m_width->value(), m_height->value());
    if (unit() == Millimetres)
        options.millimetres = size;
    else
        options.pixels = size.toSize();
    options.resolution = m_resolution->value();
    options.transparent = m_transparent->isChecked();
    return options;
}

void PictureDialog::accept()
{
    const QFileInfo file(path());
    if (file.isFile() && path() != m_replaced &&
        QMessageBox::question(this, windowTitle(),
                              tr("\"%1\" exists. Shall it be replaced?").arg(file.fileName())) !=
            QMessageBox::Yes)
        return;
    QSettings settings;
    settings.setValue(folderKey, file.absolutePath());
    settings.setValue(formatKey, m_format->currentData());
    settings.setValue(unitKey, int(unit()));
    settings.setValue(widthKey, m_width->value());
    settings.setValue(heightKey, m_height->value());
    settings.setValue(resolutionKey, m_resolution->value());
    settings.setValue(transparentKey, m_transparent->isChecked());
    QDialog::accept();
}
