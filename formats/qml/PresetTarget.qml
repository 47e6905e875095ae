import QtQml 2.15

/*! Where a chosen preset goes: to a whole page of the host, or to one task of its list. */
QtObject {
    id: root

    required property var page
    required property var wholePage
    required property var taskId

    readonly property bool isConverter: root.page === "Converter"

    function assign(id) {
        if (root.wholePage) {
            root.assignGlobal(id)
        } else if (root.isConverter) {
            O_ConverterProxy.setConvertingListTaskFormat(root.taskId, id)
        } else {
            O_EditorProxy.setEditingListTaskFormat(root.taskId, id)
        }
    }

    function assignGlobal(id) {
        if (root.isConverter) {
            O_ConverterProxy.setConverterGlobalFormat(id)
        } else {
            O_EditorProxy.setEditorGlobalFormat(id)
        }
    }
}
