import QtQuick
import Quillmere.controls
import Quillmere.theme

// The heading of a section.
PlainText {
    font: Theme.title3
    Accessible.role: Accessible.Heading
}
