#include "ZrPluginTexts.h"

#include <QtCore/QFileInfo>
#include <QtCore/QLocale>

#include <algorithm>

namespace {
constexpr int maxLength = 500;

bool isSteering(QChar sign)
{
    const QChar::Category category = sign.category();
    return category == QChar::Other_Control || category == QChar::Other_Format ||
           category == QChar::Separator_Line || category == QChar::Separator_Paragraph ||
           category == QChar::Other_Surrogate || category == QChar::Other_PrivateUse ||
           category == QChar::Other_NotAssigned;
}
} // namespace

QString ZrPluginTexts::plain(const QString &text)
{
    QString result = text.left(maxLength);
    for (QChar &sign : result) {
        if (isSteering(sign))
            sign = QChar::ReplacementCharacter;
    }
    return result;
}

QString ZrPluginTexts::fileName(const ZrPluginEntry &entry)
{
    return plain(QFileInfo(entry.file.path).fileName());
}

QString ZrPluginTexts::state(const ZrPluginEntry &entry)
{
    switch (entry.state) {
    case ZrPluginEntry::Found:
        return tr("found");
    case ZrPluginEntry::Loaded:
        return tr("loaded");
    case ZrPluginEntry::Refused:
        return tr("refused");
    case ZrPluginEntry::SwitchedOff:
        return tr("switched off");
    }
    return QString();
}

QString ZrPluginTexts::reason(const ZrPluginEntry &entry)
{
    const QString detail = plain(entry.file.detail);
    switch (entry.file.reason) {
    case ZrPluginReason::None:
        return QString();
    case ZrPluginReason::Unreadable:
        return tr("Cannot be read: %1").arg(detail);
    case ZrPluginReason::NotAPlugin:
        return tr("No plugin: %1").arg(detail);
    case ZrPluginReason::Damaged:
        return tr("Damaged: %1").arg(detail);
    case ZrPluginReason::Unsealed:
        return tr("Neither a seal nor a manifest vouches for its content");
    case ZrPluginReason::OtherBuild:
        return tr("Made for another machine or toolkit: %1").arg(detail);
    case ZrPluginReason::WrongInterface:
        return tr("Wrong interface: %1").arg(detail);
    case ZrPluginReason::NoId:
        return tr("No usable ID: %1").arg(detail);
    case ZrPluginReason::DoubleId:
        return tr("Has the ID of %1").arg(detail);
    case ZrPluginReason::NotInManifest:
        return tr("Not in the manifest, or with another hash");
    case ZrPluginReason::MissingSymbol:
        return tr("Missing symbol: %1").arg(detail);
    case ZrPluginReason::MissingLibrary:
        return tr("Missing library: %1").arg(detail);
    case ZrPluginReason::LoadFailed:
        return tr("Cannot be loaded: %1").arg(detail);
    case ZrPluginReason::EndedLastStart:
        return tr("A start ended while it was loaded or made");
    case ZrPluginReason::SwitchedOff:
        return tr("By the user");
    }
    return QString();
}

QString ZrPluginTexts::milliseconds(qint64 us)
{
    return us > 0 ? QLocale().toString(double(us) / 1000.0, 'f', 1) : QString();
}

QString ZrPluginTexts::table(const QVector<ZrPluginEntry> &entries)
{
    QString text;
    for (const ZrPluginEntry &entry : entries) {
        const QStringList parts = {fileName(entry), plain(entry.file.id), plain(entry.file.version),
                                   state(entry), reason(entry)};
        text += parts.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

QStringList ZrPluginTexts::notices(const ZrPluginCatalogue &catalogue)
{
    QStringList notices;
    const QStringList ended = catalogue.endedLastStart();
    for (const QString &id : ended)
        notices.append(tr("The last start ended while the plugin %1 was loaded or made; it is switched off.")
                           .arg(plain(id)));
    const QVector<ZrPluginEntry> &entries = catalogue.entries();
    const auto refused = int(std::count_if(entries.cbegin(), entries.cend(), [](const ZrPluginEntry &entry) {
        return entry.state == ZrPluginEntry::Refused;
    }));
    if (refused > 0)
        notices.append(tr("Refused plugin files: %1.").arg(QLocale().toString(refused)));
    return notices;
}
