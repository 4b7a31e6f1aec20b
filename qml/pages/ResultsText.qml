// A line of text on the Results page, in the theme's face and colour unless told otherwise.
import QtQuick

Text {
    property var theme: null
    property var type: null

    color: theme.text
    font.family: theme.fontFamily
    font.pixelSize: type.bodySm
    elide: Text.ElideRight
}
