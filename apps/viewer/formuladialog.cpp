#include "formuladialog.h"

#include "formula.h"

#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

namespace {

constexpr char formulaKey[] = "formula/text";
constexpr char endsKey[] = "formula/ends";
constexpr char columnsKey[] = "formula/columns";
constexpr char rowsKey[] = "formula/rows";

constexpr int usualNodes = 150;
constexpr int mostNodes = 100000;
constexpr int formulaLetters = 44;

struct Sample
{
    const char* formula;
    const char* ends[4];
};

constexpr Sample samples[] = {
    {"sin(x)*cos(y)", {"-5", "5", "-5", "5"}},
    {"sin(sqrt(x^2+y^2))/sqrt(x^2+y^2)", {"-15", "15", "-15", "15"}},
    {"x*exp(-x^2-y^2)", {"-2", "2", "-2", "2"}},
    {"x^3-3*x*y^2", {"-1", "1", "-1", "1"}},
    {"log(1+(x^2+y-11)^2+(x+y^2-7)^2)", {"-5", "5", "-5", "5"}},
    {"cos(x)+cos(y)+2*exp(-(x^2+y^2)/4)", {"-2*pi", "2*pi", "-2*pi", "2*pi"}},
};

} // namespace

FormulaDialog::FormulaDialog(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("New from formula"));
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    addFormula(*grid);
    addRange(*grid);
    addMesh(*grid);
    m_areaProblem = addProblem(*grid, 5, "areaProblem");
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    connect(buttons, &QDialogButtonBox::accepted, this, &FormulaDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addStretch();
    layout->addWidget(buttons);
    restore();
    m_formula->lineEdit()->selectAll();
    check();
}

void FormulaDialog::addFormula(QGridLayout& grid)
{
    m_formula = new QComboBox;
    m_formula->setObjectName("formula");
    m_formula->setEditable(true);
    m_formula->setInsertPolicy(QComboBox::NoInsert);
    m_formula->completer()->setCompletionMode(QCompleter::PopupCompletion);
    m_formula->setMinimumContentsLength(formulaLetters);
    for (const Sample& sample : samples)
        m_formula->addItem(QLatin1String(sample.formula));
    m_formula->setToolTip(
        tr("Operators + - * / ^, comparisons and ?:; functions such as sin, exp, sqrt, abs, "
           "min, max, floor and mod; constants pi and e"));
    auto* label = new QLabel(tr("&z ="));
    label->setBuddy(m_formula);
    grid.addWidget(label, 0, 0, Qt::AlignRight);
    grid.addWidget(m_formula, 0, 1, 1, 3);
    m_formulaProblem = addProblem(grid, 1, "formulaProblem");
    connect(m_formula, &QComboBox::editTextChanged, this, &FormulaDialog::check);
    connect(m_formula, QOverload<int>::of(&QComboBox::activated), this, &FormulaDialog::takeExample);
}

QLabel* FormulaDialog::addProblem(QGridLayout& grid, int row, const QString& name)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Room for two lines, so that nothing jumps while typing.
    label->setMinimumHeight(2 * fontMetrics().lineSpacing());
    QPalette palette = label->palette();
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    palette.setColor(QPalette::WindowText, dark ? QColor(255, 140, 130) : QColor(176, 24, 24));
    label->setPalette(palette);
    grid.addWidget(label, row, 1, 1, 3);
    return label;
}

void FormulaDialog::addRange(QGridLayout& grid)
{
    const QString names[] = {tr("&x from"), tr("to"), tr("&y from"), tr("to")};
    for (int i = 0; i < 4; ++i) {
        auto* end = new QLineEdit;
        end->setObjectName(QStringLiteral("end%1").arg(i));
        end->setToolTip(tr("A number, or a formula of constants such as 2*pi"));
        auto* label = new QLabel(names[i]);
        label->setBuddy(end);
        grid.addWidget(label, 2 + i / 2, 2 * (i % 2), Qt::AlignRight);
        grid.addWidget(end, 2 + i / 2, 2 * (i % 2) + 1);
        m_ends[std::size_t(i)] = end;
        connect(end, &QLineEdit::textChanged, this, &FormulaDialog::check);
    }
}

void FormulaDialog::addMesh(QGridLayout& grid)
{
    const auto add = [this, &grid](const QString& text, int column, const QString& name) {
        auto* box = new QSpinBox;
        box->setObjectName(name);
        box->setRange(2, mostNodes);
        auto* label = new QLabel(text);
        label->setBuddy(box);
        grid.addWidget(label, 4, column, Qt::AlignRight);
        grid.addWidget(box, 4, column + 1);
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &FormulaDialog::check);
        return box;
    };
    m_columns = add(tr("&Nodes along x"), 0, "columns");
    m_rows = add(tr("along y"), 2, "rows");
}

void FormulaDialog::restore()
{
    const QSettings settings;
    takeExample(0);
    m_formula->setEditText(settings.value(formulaKey, m_formula->itemText(0)).toString());
    const QStringList ends = settings.value(endsKey).toStringList();
    if (ends.size() == 4)
        setEnds({ends[0], ends[1], ends[2], ends[3]});
    m_columns->setValue(settings.value(columnsKey, usualNodes).toInt());
    m_rows->setValue(settings.value(rowsKey, usualNodes).toInt());
}

void FormulaDialog::accept()
{
    if (!m_ok->isEnabled())
        return;
    QSettings settings;
    settings.setValue(formulaKey, formula());
    QStringList ends;
    for (const QLineEdit* end : m_ends)
        ends.append(end->text());
    settings.setValue(endsKey, ends);
    settings.setValue(columnsKey, m_columns->value());
    settings.setValue(rowsKey, m_rows->value());
    QDialog::accept();
}

void FormulaDialog::takeExample(int index)
{
    const auto& ends = samples[index].ends;
    setEnds({ends[0], ends[1], ends[2], ends[3]});
}

void FormulaDialog::setEnds(const std::array<QString, 4>& ends)
{
    for (std::size_t i = 0; i < ends.size(); ++i)
        m_ends[i]->setText(ends[i]);
}

QString FormulaDialog::formula() const
{
    return m_formula->currentText().simplified();
}

QString FormulaDialog::range() const
{
    return QStringLiteral("x=%1:%2,y=%3:%4")
        .arg(m_ends[0]->text(), m_ends[1]->text(), m_ends[2]->text(), m_ends[3]->text());
}

void FormulaDialog::check()
{
    // Not all fields are there while the first are filled.
    if (m_ok == nullptr)
        return;
    Formula typed(m_formula->currentText());
    m_formulaProblem->setText(typed.error());
    FormulaArea wanted;
    wanted.columns = m_columns->value();
    wanted.rows = m_rows->value();
    QString problem;
    if (wanted.setRange(range(), problem) && typed.isValid() && !typed.fits(wanted))
        problem = typed.error();
    m_areaProblem->setText(problem);
    m_area = wanted;
    m_ok->setEnabled(typed.isValid() && problem.isEmpty());
}
