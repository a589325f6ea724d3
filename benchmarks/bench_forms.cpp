// A form made from a description: built, laid out and painted for the first time; a sheet with a table of
// parameters that gets another size.
#include "ZrAlgoParamSettingWidget.h"
#include "ZrAutoBuildWidget.h"
#include "ZrBench.h"
#include "ZrBenchGrids.h"

#include "zrdefine/Constants.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace {
constexpr int Rows = 40;
constexpr int InRow = 5;
constexpr double MostMs = 150; // what a user may wait for a sheet of 200 parameters
constexpr int Basic = 50;      // parameters of a sheet whose basic ones stand in a table
constexpr double FrameMs = 16; // what a resize may take of each frame

/// What stands in each row, in turn: as strategies ask for them, the common ones more often.
struct EditorType
{
    const QString *widgetType;
    const QString *valueType;
};

QVector<EditorType> kinds()
{
    return {{&Constants::WIDGETTYPE_LINEEDIT, &Constants::VALUETYPE_DOUBLE},
            {&Constants::WIDGETTYPE_SPINBOX, &Constants::VALUETYPE_INT},
            {&Constants::WIDGETTYPE_COMBOBOX, &Constants::VALUETYPE_INT},
            {&Constants::WIDGETTYPE_CHECKBOX, &Constants::VALUETYPE_BOOL},
            {&Constants::WIDGETTYPE_TIMEEDIT, &Constants::VALUETYPE_TIME},
            {&Constants::WIDGETTYPE_LABEL, &Constants::VALUETYPE_STRING},
            {&Constants::WIDGETTYPE_RADIOBUTTON, &Constants::VALUETYPE_INT},
            {&Constants::WIDGETTYPE_SPINBOX, &Constants::VALUETYPE_DOUBLE},
            {&Constants::WIDGETTYPE_LINEEDIT, &Constants::VALUETYPE_INT},
            {&Constants::WIDGETTYPE_DATETIME, &Constants::VALUETYPE_STRING}};
}

/// As above, and two of each hundred a box of many choices or a search box.
EditorType kindAt(int place)
{
    if (place % 100 == 42)
        return {&Constants::WIDGETTYPE_MULTICOMBOBOX, &Constants::VALUETYPE_STRING};
    if (place % 100 == 77)
        return {&Constants::WIDGETTYPE_ZRSEARCHBOX, &Constants::VALUETYPE_STRING};
    const QVector<EditorType> all = kinds();
    return all.at(place % all.size());
}

QVariantList choices()
{
    QVariantList options;
    for (int number = 0; number < 3; ++number)
        options.append(QVariantMap{{Constants::STRATEGYPARAM_DISPLAYROLE, QStringLiteral("c%1").arg(number)},
                                   {Constants::STRATEGYPARAM_USERROLE, number}});
    return options;
}

QList<QVariantMap> records(bool withBoxes)
{
    QList<QVariantMap> records;
    for (int place = 0; place < Rows * InRow; ++place) {
        const EditorType kind = withBoxes ? kindAt(place) : kinds().at(place % kinds().size());
        records.append({{Constants::STRATEGYPARAM_PARAMID, QStringLiteral("p%1").arg(place)},
                        {Constants::STRATEGYPARAM_PARAMNAME, QStringLiteral("Parameter %1").arg(place)},
                        {Constants::STRATEGYPARAM_ROW, place / InRow + 1},
                        {Constants::STRATEGYPARAM_WIDGETTYPE, *kind.widgetType},
                        {Constants::STRATEGYPARAM_VALUETYPE, *kind.valueType},
                        {Constants::STRATEGYPARAM_OPTIONS, choices()},
                        {Constants::STRATEGYPARAM_PRECISION, 2}});
    }
    return records;
}

QString windowSheet()
{
    QDir::setSearchPaths(QStringLiteral("ZRSkin"), {QStringLiteral(ZR_BENCH_SKINS)});
    QFile file(QStringLiteral(ZR_BENCH_WINDOW_SHEET));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no style sheet");
    return QString::fromUtf8(file.readAll());
}

/// A shown window in the workstation's sheet, and the time from the first line of `build` to what is seen.
template<typename Build>
double buildMs(const Build &build)
{
    static const QString sheet = windowSheet();
    QWidget window;
    window.setStyleSheet(sheet);
    auto *const column = new QVBoxLayout(&window);
    window.resize(1600, 1000);
    window.show();
    ZrBenchStopwatch::drain();
    return 1000 * secondsOf([&] {
               column->addWidget(build());
               ZrBenchStopwatch::drain();
           });
}

double ourMs(const QList<QVariantMap> &sheet)
{
    return buildMs([&sheet]() -> QWidget * {
        auto *const form = new ZrAutoBuildWidget;
        form->setAutoBuildWidgetDetails(sheet, 1);
        return form;
    });
}

QWidget *plainEditor(int place, QWidget *parent)
{
    switch (place % 10) {
    case 1:
        return new QSpinBox(parent);
    case 2: {
        auto *const combo = new QComboBox(parent);
        combo->addItems({QStringLiteral("c0"), QStringLiteral("c1"), QStringLiteral("c2")});
        return combo;
    }
    case 3:
        return new QCheckBox(parent);
    case 4:
        return new QTimeEdit(parent);
    case 5:
        return new QLabel(parent);
    case 6: {
        auto *const group = new QWidget(parent);
        auto *const row = new QHBoxLayout(group);
        for (const char *text : {"c0", "c1", "c2"})
            row->addWidget(new QRadioButton(QLatin1String(text)));
        return group;
    }
    case 7:
        return new QDoubleSpinBox(parent);
    case 9:
        return new QDateTimeEdit(parent);
    default:
        return new QLineEdit(parent);
    }
}

/// The same editors, placed by hand.
double plainMs()
{
    return buildMs([]() -> QWidget * {
        auto *const form = new QWidget;
        auto *const rows = new QVBoxLayout(form);
        for (int number = 0; number < Rows; ++number) {
            auto *const row = new QHBoxLayout;
            for (int place = number * InRow; place < (number + 1) * InRow; ++place) {
                auto *const pair = new QHBoxLayout;
                pair->addWidget(new QLabel(QStringLiteral("Parameter %1").arg(place), form));
                pair->addWidget(plainEditor(place, form));
                row->addLayout(pair);
            }
            row->addStretch();
            rows->addLayout(row);
        }
        return form;
    });
}
/// The description of a sheet with a table of basic parameters, as strategies write it.
QByteArray description()
{
    static const char *const editors[] = {"line", "spin", "check", "time", "line"};
    static const char *const types[] = {"string", "int", "bool", "time", "int64"};
    QJsonArray basic;
    for (int place = 0; place < Basic; ++place)
        basic.append(QJsonObject{{QStringLiteral("id"), QStringLiteral("p%1").arg(place)},
                                 {QStringLiteral("name"), QStringLiteral("Parameter %1").arg(place)},
                                 {QStringLiteral("description"), QStringLiteral("What it does")},
                                 {QStringLiteral("editor"), QLatin1String(editors[place % 5])},
                                 {QStringLiteral("type"), QLatin1String(types[place % 5])}});
    const QJsonObject look{{QStringLiteral("basicAs"), QStringLiteral("table")},
                           {QStringLiteral("showDescriptions"), true},
                           {QStringLiteral("showInitial"), false}};
    return QJsonDocument(QJsonObject{{QStringLiteral("strategy"),
                                      QJsonObject{{QStringLiteral("id"), QStringLiteral("b")}}},
                                     {QStringLiteral("interface"), look},
                                     {QStringLiteral("basic"), basic}})
        .toJson();
}

/// The sheet in a window of the workstation's look.
class SheetFixture
{
public:
    SheetFixture()
    {
        QFile file(m_folder.filePath(QStringLiteral("sheet.json")));
        if (!file.open(QIODevice::WriteOnly) || file.write(description()) < 0)
            qFatal("no description");
        file.close();
        m_window.setStyleSheet(windowSheet());
        auto *const column = new QVBoxLayout(&m_window);
        m_sheet = new ZrAlgoParamSettingWidget(&m_window);
        m_sheet->setAutoBuildWidgetDetails(file.fileName(), 1);
        column->addWidget(m_sheet);
        m_window.resize(1200, 900);
        m_window.show();
        ZrBenchStopwatch::drain();
        QVariantMap values;
        if (m_sheet->getInitialBasicParamData(values) != 0 || values.size() != Basic)
            qFatal("the sheet isn't the described one");
    }

    /// A step of a drag at the window's edge, with what it paints.
    double resizeMs()
    {
        double seconds = 0;
        for (int step = 1; step <= Steps; ++step) {
            const int widthPx = 1200 + 12 * (step <= Steps / 2 ? step : Steps - step);
            seconds += secondsOf([&] {
                m_window.resize(widthPx, 900);
                ZrBenchStopwatch::drain();
            });
        }
        return 1000 * seconds / Steps;
    }

private:
    static constexpr int Steps = 20;
    QTemporaryDir m_folder;
    QWidget m_window;
    ZrAlgoParamSettingWidget *m_sheet; // the window's
};
} // namespace

ZrBenchCases formBenches()
{
    const ZrBenchRow built = {"forms/build_200", "ms", false, "same editors by hand", "150 ms", 1.5, 1.0};
    const ZrBenchRow boxes = {"forms/build_200_boxes", "ms", false, {}, "150 ms", ZrBenchRow::None, 1.0};
    const ZrBenchRow resized = {"forms/resize", "ms", false, {}, "16 ms", ZrBenchRow::None, 1.0};
    const auto most = [] { return MostMs; };
    return {{built,
             [=] {
                 const auto sheet = std::make_shared<QList<QVariantMap>>(records(false));
                 return ZrBenchSides{[sheet] { return ourMs(*sheet); }, plainMs, most};
             }},
            {boxes,
             [=] {
                 const auto sheet = std::make_shared<QList<QVariantMap>>(records(true));
                 return ZrBenchSides{[sheet] { return ourMs(*sheet); }, {}, most};
             }},
            {resized, [] {
                 const auto fixture = std::make_shared<SheetFixture>();
                 return ZrBenchSides{[fixture] { return fixture->resizeMs(); }, {}, [] { return FrameMs; }};
             }}};
}
