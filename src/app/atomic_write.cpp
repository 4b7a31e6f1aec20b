// Qt 6.4 lets commit() succeed after a short write or a failed flush of buffered data, replacing the old file
// with a cut one; checking both before the commit keeps the replacement all or nothing.
#include "app/atomic_write.h"

namespace kelvane_app {

QString commitAll(QSaveFile& file, const QByteArray& bytes) {
    if (file.write(bytes) != bytes.size() || !file.flush()) {
        const QString error = file.errorString();
        file.cancelWriting();
        file.commit();
        return error;
    }
    return file.commit() ? QString() : file.errorString();
}

}  // namespace kelvane_app
