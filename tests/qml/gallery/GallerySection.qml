// One photographed group of the gallery: its components side by side on the page background.
import QtQuick

Rectangle {
    id: section

    property var theme: null
    default property alias content: row.data

    implicitWidth: row.implicitWidth + 32
    implicitHeight: row.implicitHeight + 32
    color: theme ? theme.bg1 : "#0D1117"

    Row {
        id: row
        x: 16
        y: 16
        spacing: 16
    }
}
