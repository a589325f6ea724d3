#include "ZrShowcasePage.h"

#include "ZrShowcaseGrid.h"
#include "ZrShowcasePicture.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtCore/QDebug>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int EdgePx = 24;
constexpr int CaptionGapPx = 6;
constexpr int RowGapPx = 20;
// Chinese and Latin lines differ in height: what stands side by side would not stand on one line.
constexpr int CaptionPx = 17;
constexpr int LabelPx = 22;

QLabel *makeLabel(const char *name, const QString &text, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setIndent(0); // one with a line below it would be indented
    label->setText(text);
    return label;
}
} // namespace

ZrShowcasePage::ZrShowcasePage(const QString &id, const QString &title, const QString &purpose,
                               QWidget *parent)
    : QWidget(parent)
    , m_id(id)
    , m_title(title)
    , m_area(new QScrollArea(this))
    , m_content(new QWidget)
{
    setObjectName(id);
    setAccessibleName(title);
    // Before any part is laid out: what was polished under other sheets would keep their look.
    ZrCore::instance()->addStyle2View(this, Constants::SKIN_SYSTEM + QStringLiteral("client/showcase.css"));
    m_area->setObjectName(QStringLiteral("showcaseArea"));
    m_area->setAccessibleName(title);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    m_content->setObjectName(QStringLiteral("showcaseContent"));
    auto *const whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_area);
    addHeader(purpose);
    m_area->setWidget(m_content);
    // Every view has its new sheet by the time of this signal.
    connect(ZrCore::instance(), &ZrCore::signalSkinChanged, this, &ZrShowcasePage::skinChanged);
}

void ZrShowcasePage::addHeader(const QString &purpose)
{
    auto *const column = new QVBoxLayout(m_content);
    column->setContentsMargins(EdgePx, EdgePx, EdgePx, EdgePx);
    column->setSpacing(0);
    column->addWidget(makeLabel("showcaseTitle", m_title, m_content));
    column->addSpacing(CaptionGapPx);
    QLabel *const sentence = makeLabel("showcasePurpose", purpose, m_content);
    sentence->setWordWrap(true);
    column->addWidget(sentence);
    column->addStretch(1);
}

void ZrShowcasePage::beginRow(const QString &caption)
{
    auto *const column = static_cast<QVBoxLayout *>(m_content->layout());
    auto *const row = new QWidget(m_content);
    m_row = new ZrShowcaseGrid(row);
    // Above the stretch, which keeps the rows together at the top.
    int place = column->count() - 1;
    column->insertSpacing(place++, RowGapPx);
    column->insertWidget(place++, makeLabel("showcaseRow", caption, m_content));
    column->insertSpacing(place++, RowGapPx / 2);
    column->insertWidget(place, row);
}

QWidget *ZrShowcasePage::addCell(const QString &caption, QWidget *shown)
{
    if (!m_row)
        beginRow(QString());
    auto *const cell = new QWidget(m_row->parentWidget());
    cell->setObjectName(QStringLiteral("showcaseCell"));
    auto *const column = new QVBoxLayout(cell);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(CaptionGapPx);
    QLabel *const label = makeLabel("showcaseCaption", caption, cell);
    label->setFixedHeight(CaptionPx);
    column->addWidget(label);
    const bool fills = shown->sizePolicy().expandingDirections().testFlag(Qt::Horizontal);
    column->addWidget(shown, 0, fills ? Qt::Alignment(Qt::AlignTop) : Qt::AlignTop | Qt::AlignLeft);
    column->addStretch(1);
    m_row->addWidget(cell);
    return cell;
}

void ZrShowcasePage::addSample(const QString &caption, QWidget *sample)
{
    if (!sample) {
        qWarning() << "ZrShowcasePage::addSample" << m_id << caption << "is null";
        return;
    }
    if (sample->accessibleName().isEmpty())
        sample->setAccessibleName(caption);
    if (qobject_cast<QLabel *>(sample))
        sample->setMinimumHeight(qMax(LabelPx, sample->minimumHeight()));
    addCell(caption, sample);
    // A window was hidden when it became a child.
    sample->show();
}

void ZrShowcasePage::addPicture(const QString &caption, const Maker &make, State state)
{
    auto *const picture = new ZrShowcasePicture(make, state, this);
    picture->setAccessibleName(caption);
    m_pictures.append(picture);
    addCell(caption, picture);
    if (m_outdated || !isVisible())
        m_outdated = true;
    else
        picture->take();
}

void ZrShowcasePage::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

// Not earlier: the sheets of the windows around it are part of a widget's look.
void ZrShowcasePage::showEvent(QShowEvent *event)
{
    if (m_outdated)
        takePictures();
    QWidget::showEvent(event);
}

void ZrShowcasePage::skinChanged()
{
    m_outdated = true;
    if (isVisible())
        takePictures();
}

void ZrShowcasePage::takePictures()
{
    m_outdated = false;
    for (ZrShowcasePicture *const picture : qAsConst(m_pictures))
        picture->take();
}

QPixmap ZrShowcasePage::grabWhole()
{
    // On a short page the content fills the dock.
    const int needed = m_content->heightForWidth(m_content->width());
    return m_content->grab({0, 0, m_content->width(), qMin(needed, m_content->height())});
}
