// A monochrome icon from the module's icon set, tinted to any colour.
import QtQuick
import Qt5Compat.GraphicalEffects

Item {
    id: root

    // Taken like every component's, though the colour is always given explicitly.
    property var theme: null
    property string name: ""
    property int size: 16
    property color color: "white"
    property real iconOpacity: 1.0

    readonly property string _iconFolder: "qrc:/Kelvane/qml/assets/icons/"

    implicitWidth: size
    implicitHeight: size

    Image {
        id: image
        objectName: "image"
        anchors.fill: parent
        source: root.name === "" ? "" : root._iconFolder + root.name + ".svg"
        sourceSize: Qt.size(root.size, root.size)
        fillMode: Image.PreserveAspectFit
        smooth: true
        // Only the tinted copy below is drawn, so the artwork's own colour never shows.
        visible: false
    }

    ColorOverlay {
        objectName: "overlay"
        anchors.fill: image
        source: image
        color: root.color
        opacity: root.iconOpacity
        visible: image.status === Image.Ready
    }
}
