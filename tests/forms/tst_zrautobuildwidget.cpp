#include "FormScene.h"
#include "ZrAutoBuildWidget.h"
#include "ZrLabel.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QVBoxLayout>

#include <memory>

namespace {
QVariantMap line(const QString &id, int row, const QVariantMap &more = QVariantMap())
{
    return form::record(id, Constants::WIDGETTYPE_LINEEDIT, Constants::VALUETYPE_STRING,
                        form::joined({{Constants::STRATEGYPARAM_ROW, row}}, more));
}

QVariantMap box(const QString &id, int row)
{
    return form::record(id, Constants::WIDGETTYPE_CHECKBOX, Constants::VALUETYPE_BOOL,
                        {{Constants::STRATEGYPARAM_ROW, row}});
}

/// What stands in the form, row by row and pair by pair: "label|editor", "." for a spacer.
class Shape
{
public:
    explicit Shape(const ZrAutoBuildWidget &form)
        : content(form.layout()->itemAt(0)->widget())
    {
        QLayout *const lines = content->layout();
        for (int line = 0; line < lines->count(); ++line)
            rows.append(describe(lines->itemAt(line)));
    }

    QVBoxLayout *lines() const { return qobject_cast<QVBoxLayout *>(content->layout()); }
    QHBoxLayout *row(int number) const
    {
        return qobject_cast<QHBoxLayout *>(lines()->itemAt(number)->layout());
    }
    QHBoxLayout *pair(int number, int place) const
    {
        return qobject_cast<QHBoxLayout *>(row(number)->itemAt(place)->layout());
    }

    QWidget *content;
    QStringList rows;

private:
    static QString describe(QLayoutItem *item)
    {
        if (item->spacerItem())
            return ".";
        if (QWidget *const widget = item->widget()) {
            const auto *const label = qobject_cast<ZrLabel *>(widget);
            return label ? label->text()
                         : "[" + widget->property(Constants::STRATEGYPARAM_PARAMID.toUtf8()).toString() + "]";
        }
        QStringList parts;
        for (int place = 0; place < item->layout()->count(); ++place)
            parts.append(describe(item->layout()->itemAt(place)));
        return parts.join(' ');
    }
};

const QString Colon = QString::fromUtf8("：");
} // namespace

class tst_ZrAutoBuildWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        m_quiet = std::make_unique<QuietPlatform>();
        QVERIFY(m_host.isReady());
    }
    void cleanupTestCase() { m_quiet.reset(); }

    void editorsStandInTheirRowsInListOrder()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails({line("z", 2), line("b", 1), line("a", 1), line("y", 2)}, 1);
        const Shape shape(form);
        QCOMPARE(shape.rows, QStringList({"b name" + Colon + " [b] a name" + Colon + " [a] .",
                                          "z name" + Colon + " [z] y name" + Colon + " [y] .", "."}));
    }

    void aCheckBoxStandsBeforeItsName()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails({box("c", 1), line("a", 1)}, 1);
        const Shape shape(form);
        QCOMPARE(shape.rows.first(), "[c] c name a name" + Colon + " [a] .");
        QCOMPARE(shape.pair(0, 0)->spacing(), 1);
        QCOMPARE(shape.pair(0, 1)->spacing(), 5);
        form.resize(600, 100);
        form.show();
        const QWidget *const check = shape.pair(0, 0)->itemAt(0)->widget();
        const QWidget *const name = shape.pair(0, 0)->itemAt(1)->widget();
        QVERIFY(check->geometry().right() < name->geometry().left());
    }

    void spacersTakeWhatIsLeft()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails({line("a", 1)}, 1);
        const Shape shape(form);
        const QSpacerItem *const right = shape.row(0)->itemAt(1)->spacerItem();
        QCOMPARE(right->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
        QCOMPARE(right->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(right->sizeHint(), QSize(0, 0));
        const QSpacerItem *const below = shape.lines()->itemAt(1)->spacerItem();
        QCOMPARE(below->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(below->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
        QCOMPARE(below->sizeHint(), QSize(0, 0));
    }

    void aRowThatNoRecordHasStaysEmpty()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails({line("a", 1), line("b", 4)}, 1);
        QCOMPARE(Shape(form).rows,
                 QStringList({"a name" + Colon + " [a] .", ".", ".", "b name" + Colon + " [b] .", "."}));
        ZrAutoBuildWidget packed;
        packed.setAutoBuildWidgetDetails({line("a", 1), line("b", 2)}, 1);
        // Each of the two empty rows takes its spacing.
        QCOMPARE(form.sizeHint().height(), packed.sizeHint().height() + 2 * 6);
    }

    void withoutARowAnEditorStandsNowhere()
    {
        QVariantMap without = line("c", 1);
        without.remove(Constants::STRATEGYPARAM_ROW);
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails({line("a", 0), line("b", -3), without, line("d", 1)}, 1);
        const Shape shape(form);
        QCOMPARE(shape.rows, QStringList({"d name" + Colon + " [d] .", "."}));
        QCOMPARE(form.getAutoBuildData().keys(), QStringList({"a", "b", "c", "d"}));
        QCOMPARE(form.getAutoBuildSubWidgetObject()->getSubWidgetMap().value("a")->parentWidget(),
                 shape.content);
    }

    void anEditorThatCannotBeMadeLeavesItsNameAlone()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails(
            {form::record("p", "Slider", Constants::VALUETYPE_INT, {{Constants::STRATEGYPARAM_ROW, 1}})}, 1);
        QCOMPARE(Shape(form).rows.first(), "p name" + Colon + " .");
    }

    void noRecordsMakeAnEmptyForm()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails({}, 1);
        QVERIFY(Shape(form).rows.isEmpty());
        form.setAutoBuildWidgetDetails({line("a", 0)}, 1);
        QVERIFY(Shape(form).rows.isEmpty());
    }

    void widthsAreFixedWhereTold()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails(
            {line("a", 1,
                  {{Constants::STRATEGYPARAM_NAMEWIDTH, 77}, {Constants::STRATEGYPARAM_WIDGETWIDTH, 133}}),
             line("b", 1, {{Constants::STRATEGYPARAM_NAMEWIDTH, -5}})},
            1);
        const Shape shape(form);
        QCOMPARE(shape.pair(0, 0)->itemAt(0)->widget()->minimumWidth(), 77);
        QCOMPARE(shape.pair(0, 0)->itemAt(0)->widget()->maximumWidth(), 77);
        QCOMPARE(shape.pair(0, 0)->itemAt(1)->widget()->minimumWidth(), 133);
        QCOMPARE(shape.pair(0, 0)->itemAt(1)->widget()->maximumWidth(), 133);
        QCOMPARE(shape.pair(0, 1)->itemAt(0)->widget()->maximumWidth(), 0);
        QCOMPARE(shape.pair(0, 1)->itemAt(1)->widget()->maximumWidth(), QWIDGETSIZE_MAX);
    }

    void spacingsHoldFromTheNextBuildOn()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails({line("a", 1)}, 1);
        QCOMPARE(Shape(form).row(0)->spacing(), 15);
        QCOMPARE(Shape(form).lines()->spacing(), 6);
        form.setHBoxSpacing(3);
        form.setVBoxSpacing(4);
        QCOMPARE(Shape(form).row(0)->spacing(), 15);
        form.setAutoBuildWidgetDetails({line("a", 1)}, 1);
        QCOMPARE(Shape(form).row(0)->spacing(), 3);
        QCOMPARE(Shape(form).lines()->spacing(), 4);
        const QMargins none;
        QCOMPARE(Shape(form).lines()->contentsMargins(), none);
        QCOMPARE(Shape(form).row(0)->contentsMargins(), none);
        QCOMPARE(form.layout()->contentsMargins(), none);
    }

    void aSecondBuildLeavesNothingOfTheFirst()
    {
        ZrAutoBuildWidget form;
        ZrAutoBuildSubWidgetObject *const object = form.getAutoBuildSubWidgetObject();
        form.setAutoBuildWidgetDetails({line("a", 1), box("b", 2), line("c", 0)}, 1);
        const QPointer<QWidget> old(object->getSubWidgetMap().value("c"));
        form.setAutoBuildWidgetDetails({line("d", 1)}, 1);
        QVERIFY(!old);
        QCOMPARE(form.findChildren<QLineEdit *>().size(), 1);
        QVERIFY(form.findChildren<QCheckBox *>().isEmpty());
        QCOMPARE(form.findChildren<ZrLabel *>().size(), 1);
        QCOMPARE(form.layout()->count(), 1);
        QCOMPARE(form.getAutoBuildSubWidgetObject(), object);
        QCOMPARE(form.getAutoBuildData().keys(), QStringList("d"));
    }

    void theModeOfTheBuildHoldsForTheValues()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails({line("a", 1)}, 3);
        auto *const edit = form.findChild<QLineEdit *>();
        QVERIFY(!edit->isReadOnly());
        form.setInitialBasicParamData({{"a", "x"}});
        QVERIFY(edit->isReadOnly());
        QCOMPARE(form.getAutoBuildData(), QVariantMap({{"a", "x"}}));
    }

    void aRowBeyondAnyFormIsToldAndLeftOut()
    {
        ZrAutoBuildWidget form;
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^ZrAutoBuildWidget::.* 2147483647 "));
        form.setAutoBuildWidgetDetails({line("a", 1), line("b", 2147483647)}, 1);
        QCOMPARE(Shape(form).rows.size(), 2);
        QCOMPARE(form.getAutoBuildData().keys(), QStringList({"a", "b"}));
    }

    void editorsAreCalledByTheirNames()
    {
        ZrAutoBuildWidget form;
        form.setAutoBuildWidgetDetails({line("a", 1)}, 1);
        QCOMPARE(form.findChild<QLineEdit *>()->accessibleName(), QString("a name"));
    }

private:
    FormHost m_host;
    std::unique_ptr<QuietPlatform> m_quiet; // once the test's own handler is in place
};

ZR_TEST_MAIN(tst_ZrAutoBuildWidget)
#include "tst_zrautobuildwidget.moc"
