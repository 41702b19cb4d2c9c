#include "CameraInfoMembers.h"

#include "DOC_Control.h"
#include "DOC_Image.h"
#include "DOC_Interface.h"
#include "Record.h"

namespace camerainfo {

void add(Record& record, DOC_Interface& doc) {
    const QString comment = doc.image().getComment();
    QString lines = comment;
    lines.replace(QLatin1String(zeb::CommentSeparator), QLatin1String("\n"));
    const int firstEnd = comment.indexOf(QLatin1String(zeb::CommentSeparator));
    record.setText(QLatin1String("ipAddress"), doc.control().getAddress(1));
    record.setText(QLatin1String("comment"), firstEnd < 0 ? comment : comment.left(firstEnd));
    record.setText(QLatin1String("comments"), lines);
}

}  // namespace camerainfo
