// The interface language: a drop-down of the offered languages, each under its own name, that shows the
// language manager's code in force and hands it the code the user picks.
import QtQuick
import QtQuick.Controls

ComboBox {
    id: box

    property var theme: null
    property var type: null

    // Only the first entry is translated; the others name themselves in their own language.
    readonly property var languages: [
        {code: "system", name: ""},
        {code: "en", name: "English"},
        {code: "es", name: "Español"},
        {code: "fr", name: "Français"},
        {code: "de", name: "Deutsch"},
        {code: "pt_BR", name: "Português (Brasil)"},
        {code: "it", name: "Italiano"},
        {code: "pl", name: "Polski"},
        {code: "ru", name: "Русский"}
    ]
    readonly property var _manager: typeof languageManager !== "undefined" ? languageManager : null
    readonly property int _boxWidth: 220
    readonly property int _boxHeight: 36
    readonly property int _rowHeight: 32
    readonly property int _chevronWidth: 10
    readonly property int _chevronHeight: 6

    function labelAt(index) {
        return index === 0 ? qsTranslate("SettingsPage", "System default") : languages[index].name
    }

    // A code the list does not offer shows the first entry.
    function indexOfCode(code) {
        const index = languages.findIndex(language => language.code === code)
        return index < 0 ? 0 : index
    }

    function _followManager() {
        currentIndex = indexOfCode(_manager ? _manager.currentLanguage : languages[0].code)
    }

    function _choose(index) {
        if (_manager)
            _manager.setLanguage(languages[index].code)
        // Picking the language in force changes nothing and sends no signal, so the box re-reads it here.
        _followManager()
    }

    implicitWidth: _boxWidth
    implicitHeight: _boxHeight
    leftPadding: theme.spaceMd
    rightPadding: 2 * theme.spaceMd + _chevronWidth
    model: languages
    displayText: labelAt(currentIndex)
    onActivated: index => _choose(index)
    Component.onCompleted: _followManager()

    Connections {
        target: box._manager
        ignoreUnknownSignals: true

        function onCurrentLanguageChanged() {
            box._followManager()
        }
    }

    background: Rectangle {
        radius: box.theme.radiusSm
        color: box.hovered ? box.theme.surfaceHover : box.theme.surface
        border.color: box.activeFocus || box.popup.visible ? box.theme.strokeFocus : box.theme.stroke
        border.width: 1
    }

    contentItem: Text {
        text: box.displayText
        color: box.theme.text
        font.family: box.theme.fontFamily
        font.pixelSize: box.type.bodyMd
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    // Drawn rather than typed, so that no glyph depends on the font.
    indicator: Canvas {
        readonly property color fill: box.theme.textMuted

        x: box.width - width - box.theme.spaceMd
        anchors.verticalCenter: parent.verticalCenter
        width: box._chevronWidth
        height: box._chevronHeight
        onFillChanged: requestPaint()
        onPaint: {
            const ctx = getContext("2d")
            ctx.reset()
            ctx.fillStyle = fill
            ctx.moveTo(0, 0)
            ctx.lineTo(width, 0)
            ctx.lineTo(width / 2, height)
            ctx.closePath()
            ctx.fill()
        }
    }

    delegate: ItemDelegate {
        id: row

        required property int index

        objectName: "languageOption_" + box.languages[index].code
        width: ListView.view ? ListView.view.width : box.width
        height: box._rowHeight
        highlighted: box.highlightedIndex === index

        contentItem: Text {
            text: box.labelAt(row.index)
            color: row.index === box.currentIndex ? box.theme.accent : box.theme.text
            font.family: box.theme.fontFamily
            font.pixelSize: box.type.bodyMd
            font.weight: row.index === box.currentIndex ? box.type.weightSemibold : box.type.weightRegular
            verticalAlignment: Text.AlignVCenter
        }

        background: Rectangle {
            radius: box.theme.radiusXs
            color: row.highlighted ? box.theme.surfaceHover : "transparent"
        }
    }

    popup: Popup {
        y: box.height + box.theme.spaceXs
        width: box.width
        implicitHeight: contentItem.implicitHeight + 2 * padding
        padding: box.theme.spaceXs

        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: box.popup.visible ? box.delegateModel : null
            currentIndex: box.highlightedIndex
        }

        background: Rectangle {
            radius: box.theme.radiusSm
            color: box.theme.surface
            border.color: box.theme.stroke
        }
    }
}
