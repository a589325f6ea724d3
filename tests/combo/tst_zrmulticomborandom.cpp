#include "ComboScene.h"

#include <random>

/// Random operations, held against a plain list of rows.
class tst_ZrMultiComboRandom : public QObject
{
    Q_OBJECT
private slots:
    void operationsInAnyOrder_data()
    {
        QTest::addColumn<uint>("seed");
        QTest::addColumn<bool>("open");
        for (uint seed = 1; seed <= 6; ++seed)
            QTest::addRow("seed %u", seed) << seed << (seed % 2 == 0);
    }

    void operationsInAnyOrder()
    {
        QFETCH(uint, seed);
        QFETCH(bool, open);
        m_random.seed(seed);
        m_rows.clear();
        m_told.clear();
        m_expectedTold.clear();
        ComboScene scene(0);
        add(&scene);
        connect(scene.combo(), &ZrMultiComboBox::signalIndexClicked, this,
                [this](int row) { m_told.append(QString::number(row)); });
        connect(scene.combo(), &ZrMultiComboBox::signalCurrentSelectedChanged, this,
                [this](const QString &text) { m_told.append(text); });
        if (open)
            QVERIFY(scene.open());
        for (int step = 0; step < 400; ++step) {
            act(&scene);
            if (step % 16 == 0)
                QCoreApplication::processEvents();
            const QString error = difference(scene);
            QVERIFY2(error.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(error)));
        }
    }

private:
    struct Row
    {
        QString text;
        QVariant data;
        bool ticked;
    };

    int below(int end) { return end > 0 ? int(m_random() % uint(end)) : 0; }

    void add(ComboScene *scene)
    {
        const int number = below(1000);
        // Few texts, so that some are there twice.
        m_rows.append({QStringLiteral("t%1").arg(number % 20), number, false});
        scene->combo()->addItem(m_rows.constLast().text, m_rows.constLast().data);
    }

    void addMany(ComboScene *scene)
    {
        QStringList texts;
        for (int i = below(5); i >= 0; --i)
            texts.append(QStringLiteral("m%1").arg(i));
        for (const QString &text : qAsConst(texts))
            m_rows.append({text, text, false});
        scene->combo()->addItems(texts);
    }

    void select(ComboScene *scene)
    {
        const int row = below(m_rows.size() + 2) - 1;
        const bool on = below(2) == 1;
        scene->combo()->selectIndex(row, on);
        if (row >= 0 && row < m_rows.size())
            m_rows[row].ticked = on;
    }

    void selectSome(ComboScene *scene)
    {
        const bool on = below(2) == 1;
        QList<int> rows;
        for (int i = below(8); i >= 0; --i)
            rows.append(below(m_rows.size() + 2) - 1);
        scene->combo()->selectIndexes(rows, on);
        for (const int row : qAsConst(rows)) {
            if (row >= 0 && row < m_rows.size())
                m_rows[row].ticked = on;
        }
    }

    void click(ComboScene *scene)
    {
        if (m_rows.isEmpty())
            return;
        const int row = below(m_rows.size());
        m_rows[row].ticked = !m_rows[row].ticked;
        m_expectedTold.append(QString::number(row));
        m_expectedTold.append(joined());
        scene->click(row);
    }

    void remove(ComboScene *scene)
    {
        const int row = below(m_rows.size() + 2) - 1;
        scene->combo()->removeItem(row);
        if (row >= 0 && row < m_rows.size())
            m_rows.removeAt(row);
    }

    void act(ComboScene *scene)
    {
        switch (below(20)) {
        case 0:
            scene->combo()->clear();
            m_rows.clear();
            break;
        case 1:
        case 2:
            addMany(scene);
            break;
        case 3:
        case 4:
        case 5:
        case 6:
            add(scene);
            break;
        case 7:
        case 8:
            remove(scene);
            break;
        case 9:
            scene->edit()->setText(QStringLiteral("foreign"));
            break;
        case 10:
            selectSome(scene);
            break;
        case 11:
        case 12:
        case 13:
            select(scene);
            break;
        default:
            click(scene);
        }
    }

    QString joined() const
    {
        QStringList texts;
        for (const Row &row : m_rows) {
            if (row.ticked)
                texts.append(row.text);
        }
        return texts.join(QLatin1Char(';'));
    }

    QString difference(const ComboScene &scene) const
    {
        const ZrMultiComboBox *const combo = scene.combo();
        if (combo->count() != m_rows.size())
            return QStringLiteral("%1 rows instead of %2").arg(combo->count()).arg(m_rows.size());
        QList<int> ticked;
        QVariantList data;
        for (int row = 0; row < m_rows.size(); ++row) {
            const Row &expected = m_rows.at(row);
            if (combo->itemText(row) != expected.text || combo->itemData(row) != expected.data ||
                combo->isIndexSelected(row) != expected.ticked || scene.box(row)->text() != expected.text)
                return QStringLiteral("row %1 differs").arg(row);
            if (expected.ticked) {
                ticked.append(row);
                data.append(expected.data);
            }
        }
        if (combo->getCurrentSelectedIndex() != ticked || combo->getCurrentSelectedIndexData() != data)
            return QStringLiteral("other rows are ticked");
        if (scene.shown() != joined())
            return QStringLiteral("'%1' instead of '%2'").arg(scene.shown(), joined());
        return m_told == m_expectedTold ? QString() : QStringLiteral("other signals");
    }

    std::mt19937 m_random;
    QVector<Row> m_rows;
    QStringList m_told;
    QStringList m_expectedTold;
};

ZR_TEST_MAIN(tst_ZrMultiComboRandom)
#include "tst_zrmulticomborandom.moc"
