#include "ZrSecurityAskBidData.h"

#include <QtCore/QDebug>

bool operator==(const ZrSecurityAskBidData &one, const ZrSecurityAskBidData &other)
{
    return one.side == other.side && one.level == other.level && one.price == other.price &&
           one.volume == other.volume && one.spare == other.spare && one.volumeText == other.volumeText;
}

bool operator!=(const ZrSecurityAskBidData &one, const ZrSecurityAskBidData &other)
{
    return !(one == other);
}

QDebug operator<<(QDebug debug, const ZrSecurityAskBidData &data)
{
    const QDebugStateSaver saver(debug);
    debug.nospace() << "ZrSecurityAskBidData(side " << data.side << ", level " << data.level << ", price "
                    << data.price << ", volume " << data.volume << ", spare " << data.spare << ", volumeText "
                    << data.volumeText << ')';
    return debug;
}
