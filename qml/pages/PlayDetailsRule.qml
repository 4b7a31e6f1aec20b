// The thin vertical rule between two hand-details columns.
import QtQuick
import QtQuick.Layouts

Rectangle {
    property var theme: null

    Layout.fillHeight: true
    Layout.preferredWidth: 1
    color: theme.stroke
}
