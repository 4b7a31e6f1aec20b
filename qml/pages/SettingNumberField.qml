// A number typed as text. The validator keeps typing inside the bounds; when editing ends the number is clamped,
// text that is no number takes the fallback, and the field shows the stored value in its short form ("5.50"
// becomes "5.5"). The text follows the value only while the field is not being edited, so a click into it never
// snaps the typing back.
import QtQuick
import QtQuick.Controls
import Kelvane

ThemedTextField {
    id: field

    property real value: 0
    // 0 for a whole number.
    property int decimals: 0
    property real minimum: 0
    property real maximum: 0
    property real fallback: 0
    // Stores each acceptable keystroke at once, instead of only when editing ends.
    property bool storesWhileTyping: false

    // Follows the focus, but lets go of it only after the typed text was stored.
    property bool _editing: false

    signal valueEdited(real value)

    function formatValue(v) {
        if (decimals === 0)
            return String(Math.round(v))
        return String(Number(Number(v).toFixed(decimals)))
    }

    function _parse(typed) {
        return decimals === 0 ? parseInt(typed, 10) : parseFloat(typed)
    }

    function _clamp(v) {
        return Math.max(minimum, Math.min(maximum, v))
    }

    // Runs on Return, on editing finished and on focus loss alike; a second run stores the same value again.
    function commit() {
        const typed = _parse(text)
        const stored = isNaN(typed) ? fallback : _clamp(typed)
        valueEdited(stored)
        text = formatValue(stored)
    }

    function _takeTyped() {
        if (storesWhileTyping && acceptableInput)
            valueEdited(_clamp(_parse(text)))
    }

    validator: decimals === 0 ? integerValidator : decimalValidator
    horizontalAlignment: TextInput.AlignRight
    inputMethodHints: Qt.ImhFormattedNumbersOnly
    onTextEdited: _takeTyped()
    onEditingFinished: commit()
    // A validator holds back editing finished for text such as "" or "0", which must still be stored.
    onActiveFocusChanged: {
        if (activeFocus) {
            _editing = true
            return
        }
        commit()
        _editing = false
    }
    Keys.onReturnPressed: event => {
        commit()
        event.accepted = false
    }
    Keys.onEnterPressed: event => {
        commit()
        event.accepted = false
    }

    Binding on text {
        when: !field._editing
        value: field.formatValue(field.value)
        restoreMode: Binding.RestoreNone
    }

    IntValidator {
        id: integerValidator
        bottom: field.minimum
        top: field.maximum
    }

    DoubleValidator {
        id: decimalValidator
        bottom: field.minimum
        top: field.maximum
        decimals: field.decimals
        notation: DoubleValidator.StandardNotation
        // Typed with a decimal point in every language, as parseFloat reads it.
        locale: "C"
    }
}
