import QtQuick 2.15
import QtTest 1.15
import "catalogue.js" as Catalogue

/*! Opens the screens with recording host objects. An unexpected message fails the test. */
TestCase {
    id: root

    property var catalogue: Catalogue.sample()
    property RecordingHost host: null
    property var screen: null
    /*! How long to wait for a state, in ms: generous, as the machine can be busy. */
    readonly property int patience: 60000
    readonly property QtObject theme: root.host ? root.host.themeManager.curTheme : null

    function init() {
        mouseMove(root, 1, 1)
        root.begin(root.catalogue)
    }

    function begin(catalogue) {
        root.host = createTemporaryObject(hostComponent, root)
        root.host.settings.converterGlobalId = "Video_MP4_002"
        root.host.settings.editorGlobalId = "Audio_MP3_001"
        root.host.publish()
        bench.begin(catalogue)
    }

    function restart(catalogue) {
        compare(bench.end(), [])
        root.begin(catalogue)
    }

    function cleanup() {
        root.letGo()
        compare(bench.end(), [])
    }

    /*! Destroys the screen as the host does, whatever the screen is doing. */
    function letGo() {
        if (root.screen) {
            root.screen.destroy()
            root.screen = null
        }
        wait(0)
    }

    /*! A new picker, not yet opened. */
    function picker(properties) {
        root.screen = root.create("ParameterconversionPage",
                                  Object.assign({ "x": 120, "y": 60 }, properties))
        return root.screen
    }

    /*! A picker that has been opened, its lists scrolled. */
    function openPicker(properties) {
        const page = root.picker(properties)
        page.open()
        waitFor(page, "opened", true)
        compare(root.host.elapse(), [100])
        root.settle()
        return page
    }

    function openDialog(info) {
        root.host.frame.info = Object.assign({
            "format": "video", "curclass": "MP4", "idIndex": "Video_MP4_002", "listID": null,
            "openTheWay": true, "fromPAGE": "Converter", "closeItem": null, "userDefine": false
        }, info)
        root.screen = root.create("DetailedParameterEditingMsgBox", {})
        root.waitForCall()
        root.settle()
        return root.screen
    }

    function create(screen, properties) {
        const component = Qt.createComponent("qrc:/formats/" + screen + ".qml")
        compare(component.errorString(), "")
        return component.createObject(root, properties)
    }

    function waitFor(object, property, value) {
        tryCompare(object, property, value, root.patience)
    }

    function waitForCall() {
        tryVerify(function () { return root.host.calls.length > 0 }, root.patience)
    }

    /*! Lets the scene process what has changed. */
    function settle() {
        wait(0)
        root.waitForRest()
    }

    /*! Waits until all items are built and laid out, so that they can be found and measured. */
    function waitForRest() {
        tryVerify(function () {
            if (!bench.isAtRest(root)) {
                grabImage(root)
            }
            return bench.isAtRest(root)
        }, root.patience, "the scene comes to rest")
    }

    function formats() {
        return O_FormatsProxy.formatListModelProxy()
    }

    function recents() {
        return O_FormatsProxy.recentlyFormatsModel()
    }

    function presets(format) {
        return O_FormatsProxy.formatListModel().formatDetailModel(format)
    }

    function shownTexts(item) {
        return root.shown(item, function (child) {
            return child.text !== undefined && child.elide !== undefined
        })
    }

    function texts(item) {
        return root.shownTexts(item).map(function (text) {
            return text.text
        })
    }

    function compareColor(actual, expected) {
        verify(Qt.colorEqual(actual, expected), actual + " instead of " + expected)
    }

    /*! The geometry of \a item in \a frame, as [x, y, width, height]. */
    function place(item, frame) {
        root.waitForRest()
        const position = item.mapToItem(frame, 0, 0)
        return [position.x, position.y, item.width, item.height]
    }

    /*! The visible items of type \a type in \a item, in order. */
    function all(type, item) {
        return root.shown(item, function (child) {
            return [type + "_QML", type + "("].some(function (start) {
                return String(child).startsWith(start)
            })
        })
    }

    function rectangles(item) {
        return root.all("QQuickRectangle", item)
    }

    function images(item) {
        return root.all("QQuickImage", item)
    }

    /*! The visible items in \a item, or in the screen, for which \a matches returns true. */
    function shown(item, matches) {
        root.waitForRest()
        const found = []
        const collect = function (parent) {
            for (let index = 0; index < parent.children.length; ++index) {
                const child = parent.children[index]
                if (child.visible) {
                    if (matches(child)) {
                        found.push(child)
                    }
                    collect(child)
                }
            }
        }
        collect(item || root.contents())
        return found
    }

    function contents() {
        return root.screen.contentItem || root.screen
    }

    function named(type, name, item) {
        const found = root.all(type, item).filter(function (candidate) {
            return candidate.Accessible.name === name
        })
        compare(found.length, 1, type + " " + name)
        return found[0]
    }

    function click(item) {
        mouseClick(item)
        root.settle()
    }

    function hover(item) {
        mouseMove(item, item.width / 2, item.height / 2)
    }

    function press(key, times) {
        for (let time = 0; time < (times === undefined ? 1 : times); ++time) {
            keyClick(key)
        }
        root.settle()
    }

    /*! The calls since the last time, except those that resize the window. */
    function calls() {
        return root.host.takeCalls().filter(function (call) {
            return call[0] !== "frame.resizeWinSize"
        })
    }

    visible: true
    width: 1000
    height: 720
    when: windowShown

    Component {
        id: hostComponent

        RecordingHost {}
    }
}
