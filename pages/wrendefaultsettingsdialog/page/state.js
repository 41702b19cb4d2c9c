// How the shared scripts know the object by which the page talks to the plug-in.
var bridge = wrendefaultsettingsdialog;

// What stands in the first three fields of the address of a camera that is none.
const DUMMY_NUM = '999';

// The page's state; its functions are added by the topics that follow.
var wrendefaultsettingsdialog_obj = {
    cameraList: [], // the groups with their cameras
    last_select_group: '', // name of the group of the last selection
    groupSelecting: false, // a rubber band is being drawn over the groups
    sequence: 0, // next value of a `dockey` or `recid`
    isLoaded: false, // the controls show what is stored
    settings: new Map() // key -> Setting, in the order in which they are stored
};
