import QtQuick
import Quillmere.controls
import Quillmere.theme

// The small heading above a field.
PlainText {
    color: Theme.secondary
    font: Theme.captionSemibold
}
