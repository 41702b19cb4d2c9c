// The page's state; its functions are added by the topics that follow.
var wrentabledialog_obj = {
    initialize: true, // until a moment after the load, by when the first rows are painted
    afterPaint: [], // what is done then
    startTab: 0, // the one that is shown before there are tabs
    tabsExist: false, // they are made after the first rows
    activeLiveTabNumber: wrentabledialog_const_obj.cameraInfoTabNo, // to return to on entering live mode
    activeMemoryTabNumber: wrentabledialog_const_obj.memoryInfoTabNo, // to return to on entering memory mode
    RecordSelection: false, // a selection by the user is being handed to the bridge
    RecordUnSelection: false, // an unselection is
    customInfoLoading: false, // the custom information grid is being filled from a camera
    batchDocKey: -1, // key of the batch row
    gridLock: false, // the grid is locked because the host is in file mode
    preventSelect: false, // a drag that began on a control must not change the selection
    recordiconClick: false, // the camera name edit icon was clicked
    accordionOpen: false,
    displaySettingDialogResult: false, // the display settings dialog was closed by OK
    tempDisplaySetting: [], // the display settings when that dialog was opened
    commentOf: null, // the grid and the camera whose comment is being written
    isSnapshotListShown: false,
    isCursorDown: false, // the mouse button is down over a grid
    isColumnDragged: false, // the head of a column is held; other columns would not be those that were there
    isRebuilding: false, // a grid's rows are being replaced
    preventSelectGroup: false, // a group button's click is being processed
    iconsDrawn: false, // icons of plug-ins have come whose use is not logged yet
    isPressed: false, // a press on the record button is being worked, or has just been
    isStarting: false, // the call that arms the cameras runs, and may be asking the user
    isCtsReady: false, // the last record status was CTS ready
    bandOf: null, // the view over which the user draws a rubber band; what it selects is handed on at its end
    rowPress: null, // where the button went down on a row: its view, key and element
    shownStyle: null, // style and mode that the style sheet was last put in for
    // What the control states make of tabs and colours; `armed` from ready on until the recording has ended.
    look: { tabsOff: false, colour: null, armed: false },

    RECORD_STATUS_LIVE: 0,
    RECORD_STATUS_CTS_READY: 1,
    RECORD_STATUS_READY: 2,
    RECORD_STATUS_RECORDING: 3,
    RECORD_STATUS_ERROR: 4
};
