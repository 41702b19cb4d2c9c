<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>zeb4</name>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>WREN Display settings</source>
        <translation>Display settings</translation>
    </message>
    <message>
        <source>WREN Default Setting</source>
        <translation>Default settings</translation>
    </message>
    <message>
        <source>wren_display_customSettings</source>
        <translation>Custom information</translation>
    </message>
    <message>
        <source>wren_display_externalSync</source>
        <translation>External sync</translation>
    </message>
    <message>
        <source>Load Selected Camera</source>
        <translation>Load from camera</translation>
    </message>
    <message>
        <source>Read xml</source>
        <translation>Read XML</translation>
    </message>
    <message>
        <source>Write xml</source>
        <translation>Write XML</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Search devices by IP address</source>
        <translation>Search devices by IP address</translation>
    </message>
    <message>
        <source>Search all devices</source>
        <translation>Search all devices</translation>
    </message>
    <message>
        <source>search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Delete all</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Device settings save and load</source>
        <translation>Device settings</translation>
    </message>
    <message>
        <source>Save setting</source>
        <translation>Save settings</translation>
    </message>
    <message>
        <source>Load setting</source>
        <translation>Load settings</translation>
    </message>
    <message>
        <source>Signal generator</source>
        <translation>Signal generator</translation>
    </message>
    <message>
        <source>Sync Hub</source>
        <translation>Sync Hub</translation>
    </message>
    <message>
        <source>Sync execute</source>
        <translation>Synchronise</translation>
    </message>
    <message>
        <source>Batch Lowlight</source>
        <translation>Low light, all</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Show all</translation>
    </message>
    <message>
        <source>ConnectOnly</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>DisconnectOnly</source>
        <translation>Disconnected</translation>
    </message>
    <message>
        <source>cameraInfoTab</source>
        <translation>Camera info</translation>
    </message>
    <message>
        <source>livecontrolTab</source>
        <translation>Live control</translation>
    </message>
    <message>
        <source>syncTab</source>
        <translation>Sync</translation>
    </message>
    <message>
        <source>irigTab</source>
        <translation>IRIG</translation>
    </message>
    <message>
        <source>pluginTab</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>memoryInfoTab</source>
        <translation>Memory info</translation>
    </message>
    <message>
        <source>memoryPluginTab</source>
        <translation>Memory tools</translation>
    </message>
    <message>
        <source>TabCommonItem</source>
        <translation>All tabs</translation>
    </message>
    <message>
        <source>Related settings</source>
        <translation>Related settings:</translation>
    </message>
    <message>
        <source>I/O setting...</source>
        <translation>I/O settings...</translation>
    </message>
    <message>
        <source>Ethernet setting...</source>
        <translation>Ethernet settings...</translation>
    </message>
    <message>
        <source>For recording test purposes, skip saving after recording.</source>
        <translation>For a test recording: nothing is saved afterwards.</translation>
    </message>
    <message>
        <source>Trigger Test</source>
        <translation>Trigger test</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Snapshot</translation>
    </message>
    <message>
        <source>Snapshot to file</source>
        <translation>To file</translation>
    </message>
    <message>
        <source>Snapshot to clipboard</source>
        <translation>To clipboard</translation>
    </message>
    <message>
        <source>Snapshot to file and clipboard</source>
        <translation>To file and clipboard</translation>
    </message>
    <message>
        <source>Snapshot settings...</source>
        <translation>Settings...</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>Settings...</translation>
    </message>
    <message>
        <source>Partition %1</source>
        <translation>Partition %1</translation>
    </message>
    <message>
        <source>Stop live</source>
        <translation>Stop live</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save layout</source>
        <translation>Save layout</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Record</translation>
    </message>
    <message>
        <source>Waiting For CTS Signal</source>
        <translation>Waiting for CTS</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>Ready...</translation>
    </message>
    <message>
        <source>Recording...</source>
        <translation>Recording...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Go on</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Lock</translation>
    </message>
    <message>
        <source>Camera name</source>
        <translation>Camera name</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alert</translation>
    </message>
    <message>
        <source>State of the camera</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Sync signal input state</source>
        <translation>Sync</translation>
    </message>
    <message>
        <source>recordCheck</source>
        <translation>Checked</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Disconnecting...</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP address</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>Shooting speed</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>Shutter speed</source>
        <translation>Shutter speed</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Trigger mode</source>
        <translation>Trigger mode</translation>
    </message>
    <message>
        <source>Live speed</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>_Priority</source>
        <translation>Priority</translation>
    </message>
    <message>
        <source>Lowlight</source>
        <translation>Low light</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>dark</translation>
    </message>
    <message>
        <source>bright</source>
        <translation>bright</translation>
    </message>
    <message>
        <source>ExternalSync</source>
        <translation>External sync</translation>
    </message>
    <message>
        <source>TriggerIn</source>
        <translation>Trigger in</translation>
    </message>
    <message>
        <source>TriggerSwIn</source>
        <translation>Trigger switch in</translation>
    </message>
    <message>
        <source>IRIG Time Stamp</source>
        <translation>IRIG time stamp</translation>
    </message>
    <message>
        <source>IRIG Sync</source>
        <translation>IRIG sync</translation>
    </message>
    <message>
        <source>Plugin</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Start frame</source>
        <translation>First frame</translation>
    </message>
    <message>
        <source>End frame</source>
        <translation>Last frame</translation>
    </message>
    <message>
        <source>selectStartFrameNo</source>
        <translation>From</translation>
    </message>
    <message>
        <source>selectEndFrameNo</source>
        <translation>To</translation>
    </message>
    <message>
        <source>Save frame</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>triggerOffset</source>
        <translation>Trigger offset</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Start Trg</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Center Trg</source>
        <translation>Center</translation>
    </message>
    <message>
        <source>End Trg</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Random Trg</source>
        <translation>Random</translation>
    </message>
    <message>
        <source>Manual Trg</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Random Reset Trg</source>
        <translation>Random reset</translation>
    </message>
    <message>
        <source>Random Center Trg</source>
        <translation>Random center</translation>
    </message>
    <message>
        <source>Random Manual Trg</source>
        <translation>Random manual</translation>
    </message>
    <message>
        <source>Twostage Trg</source>
        <translation>Two-stage</translation>
    </message>
    <message>
        <source>Twostage Half Trg</source>
        <translation>Two-stage 1/2</translation>
    </message>
    <message>
        <source>Twostage Quarter Trg</source>
        <translation>Two-stage 1/4</translation>
    </message>
    <message>
        <source>Twostage Oneeighth Trg</source>
        <translation>Two-stage 1/8</translation>
    </message>
    <message>
        <source>Reset Trg</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Rec on cmd Trg</source>
        <translation>Record on command</translation>
    </message>
    <message>
        <source>Random Loop Trg</source>
        <translation>Random loop</translation>
    </message>
    <message>
        <source>None Error Trg</source>
        <translation>None</translation>
    </message>
    <message>
        <source>WREN</source>
        <translation>WREN</translation>
    </message>
    <message>
        <source>Quit WREN?</source>
        <translation>Quit WREN?</translation>
    </message>
    <message>
        <source>All camera</source>
        <translation>All cameras</translation>
    </message>
    <message>
        <source>All Group</source>
        <translation>All groups</translation>
    </message>
    <message>
        <source>External sync signal and cameras recordrate are different</source>
        <translation>The camera's frame rate differs from the external sync signal</translation>
    </message>
    <message>
        <source>Delete all Cameras?</source>
        <translation>Delete all cameras?</translation>
    </message>
    <message>
        <source>Heads connected to the same device are also disconnected. Is it OK?</source>
        <translation>Heads of the same device are disconnected too. Is it OK?</translation>
    </message>
    <message>
        <source>Disconnect this device. Is it OK?</source>
        <translation>This device will be disconnected. Is it OK?</translation>
    </message>
    <message>
        <source>Bulk disconnect devices. Is it OK?</source>
        <translation>These devices will be disconnected. Is it OK?</translation>
    </message>
    <message>
        <source>%1 of locked heads will be changed at the same time.&lt;br&gt;Do you want to continue?</source>
        <translation>%1 of locked heads will be changed at the same time.&lt;br&gt;Do you want to continue?</translation>
    </message>
    <message>
        <source>There are cameras that need to erase the image data recorded to continue the operation. Would you like to erase the data and continue the operation?</source>
        <translation>There are cameras that need to erase the image data recorded to continue the operation. Would you like to erase the data and continue the operation?</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Don't show again</source>
        <translation>Don't show again</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memory</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>Calls</translation>
    </message>
    <message>
        <source>%1 cameras, %2 connected</source>
        <translation>%1 cameras, %2 connected</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>p_lut</source>
        <translation>Tone curve</translation>
    </message>
    <message>
        <source>p_colorcorrection</source>
        <translation>Colour correction</translation>
    </message>
    <message>
        <source>p_filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>p_scale</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>p_histogram</source>
        <translation>Histogram</translation>
    </message>
    <message>
        <source>p_mosaic</source>
        <translation>Mosaic</translation>
    </message>
    <message>
        <source>p_addtext</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>%1: frame %2</source>
        <translation>%1: frame %2</translation>
    </message>
    <message>
        <source>A viewer with simulated cameras</source>
        <translation>A viewer with simulated cameras</translation>
    </message>
    <message>
        <source>About ZEB</source>
        <translation>About ZEB</translation>
    </message>
    <message>
        <source>Address of the signal generator</source>
        <translation>Address of the signal generator</translation>
    </message>
    <message>
        <source>Addresses of Sync Hubs, with commas between</source>
        <translation>Addresses of Sync Hubs, with commas between</translation>
    </message>
    <message>
        <source>As a fraction</source>
        <translation>As a fraction</translation>
    </message>
    <message>
        <source>As a time</source>
        <translation>As a time</translation>
    </message>
    <message>
        <source>Ask before locked heads are changed</source>
        <translation>Ask before locked heads are changed</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>Sky blue</translation>
    </message>
    <message>
        <source>Camera type</source>
        <translation>Camera type</translation>
    </message>
    <message>
        <source>Colour of the memory mode</source>
        <translation>Colour of the memory mode</translation>
    </message>
    <message>
        <source>Colour while ready</source>
        <translation>Colour while ready</translation>
    </message>
    <message>
        <source>Colour while recording</source>
        <translation>Colour while recording</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Connected</translation>
    </message>
    <message>
        <source>Connected by radio</source>
        <translation>Connected by radio</translation>
    </message>
    <message>
        <source>Connected, slow link</source>
        <translation>Connected, slow link</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>Not connected</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>Ethernet</source>
        <translation>Ethernet</translation>
    </message>
    <message>
        <source>Export support file</source>
        <translation>Export support file</translation>
    </message>
    <message>
        <source>Failed to save support file.</source>
        <translation>Failed to save support file.</translation>
    </message>
    <message>
        <source>Group the digits of frame numbers</source>
        <translation>Group the digits of frame numbers</translation>
    </message>
    <message>
        <source>Group the digits of frame rates</source>
        <translation>Group the digits of frame rates</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metric</translation>
    </message>
    <message>
        <source>Interval of the table in ms</source>
        <translation>Interval of the table in ms</translation>
    </message>
    <message>
        <source>Language (from the next start on)</source>
        <translation>Language (from the next start on)</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>List connected cameras only</source>
        <translation>List connected cameras only</translation>
    </message>
    <message>
        <source>No camera is connected</source>
        <translation>No camera is connected</translation>
    </message>
    <message>
        <source>No file is open</source>
        <translation>No file is open</translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation>Nothing is recorded</translation>
    </message>
    <message>
        <source>Offer the trigger test</source>
        <translation>Offer the trigger test</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Player</translation>
    </message>
    <message>
        <source>Please attach preserved file to a mail.</source>
        <translation>Please attach the saved file to a mail.</translation>
    </message>
    <message>
        <source>Plug-in: %1</source>
        <translation>Plug-in: %1</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Record on all connected cameras</source>
        <translation>Record on all connected cameras</translation>
    </message>
    <message>
        <source>Save after recording</source>
        <translation>Save after recording</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Saving...</translation>
    </message>
    <message>
        <source>Search in the network</source>
        <translation>Search in the network</translation>
    </message>
    <message>
        <source>Show images in their real bit depth</source>
        <translation>Show images in their real bit depth</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Synchronise on an external signal</source>
        <translation>Synchronise on an external signal</translation>
    </message>
    <message>
        <source>The information below will be output in ZIP file format. Do you want to proceed?</source>
        <translation>The information below will be output in ZIP file format. Do you want to proceed?</translation>
    </message>
    <message>
        <source>- Camera setting values</source>
        <translation>- Camera setting values</translation>
    </message>
    <message>
        <source>- ZEB setting values</source>
        <translation>- ZEB setting values</translation>
    </message>
    <message>
        <source>- ZEB operation log</source>
        <translation>- ZEB operation log</translation>
    </message>
    <message>
        <source>- SDK operation log</source>
        <translation>- SDK operation log</translation>
    </message>
    <message>
        <source>- Camera log</source>
        <translation>- Camera log</translation>
    </message>
    <message>
        <source>- PC environment</source>
        <translation>- PC environment</translation>
    </message>
    <message>
        <source>- ZEB version</source>
        <translation>- ZEB version</translation>
    </message>
    <message>
        <source>- ZEB full screen capture</source>
        <translation>- ZEB full screen capture</translation>
    </message>
    <message>
        <source>- WREN window screen capture</source>
        <translation>- WREN window screen capture</translation>
    </message>
    <message>
        <source>- Currently displayed image data (1 frame)</source>
        <translation>- Currently displayed image data (1 frame)</translation>
    </message>
    <message>
        <source>Three numbers from 0 to 255 with dots between, as 192.168.0</source>
        <translation>Three numbers from 0 to 255 with dots between, as 192.168.0</translation>
    </message>
    <message>
        <source>Units of length</source>
        <translation>Units of length</translation>
    </message>
    <message>
        <source>none</source>
        <translation>none</translation>
    </message>
    <message>
        <source>s_display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>s_general</source>
        <translation>General</translation>
    </message>
    <message>
        <source>s_io</source>
        <translation>I/O</translation>
    </message>
    <message>
        <source>s_record</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>s_table</source>
        <translation>Camera table</translation>
    </message>
    <message>
        <source>START OF EXPOSURE</source>
        <translation>START OF EXPOSURE</translation>
    </message>
    <message>
        <source>END OF EXPOSURE</source>
        <translation>END OF EXPOSURE</translation>
    </message>
    <message>
        <source>EVENT POS</source>
        <translation>EVENT POS</translation>
    </message>
    <message>
        <source>EVENT NEG</source>
        <translation>EVENT NEG</translation>
    </message>
    <message>
        <source>NORMALLY CLOSE</source>
        <translation>NORMALLY CLOSE</translation>
    </message>
    <message>
        <source>NORMALLY OPEN</source>
        <translation>NORMALLY OPEN</translation>
    </message>
    <message>
        <source>ON CAM</source>
        <translation>ON CAM</translation>
    </message>
    <message>
        <source>ON CAM POS</source>
        <translation>ON CAM POS</translation>
    </message>
    <message>
        <source>ON CAM NEG</source>
        <translation>ON CAM NEG</translation>
    </message>
    <message>
        <source>ON OTHERS</source>
        <translation>ON OTHERS</translation>
    </message>
    <message>
        <source>ON OTHERS POS</source>
        <translation>ON OTHERS POS</translation>
    </message>
    <message>
        <source>ON OTHERS NEG</source>
        <translation>ON OTHERS NEG</translation>
    </message>
    <message>
        <source>POWER OFF POS</source>
        <translation>POWER OFF POS</translation>
    </message>
    <message>
        <source>POWER OFF NEG</source>
        <translation>POWER OFF NEG</translation>
    </message>
    <message>
        <source>READY POS</source>
        <translation>READY POS</translation>
    </message>
    <message>
        <source>READY NEG</source>
        <translation>READY NEG</translation>
    </message>
    <message>
        <source>REMOTE ON</source>
        <translation>REMOTE ON</translation>
    </message>
    <message>
        <source>SYNC POS</source>
        <translation>SYNC POS</translation>
    </message>
    <message>
        <source>SYNC NEG</source>
        <translation>SYNC NEG</translation>
    </message>
    <message>
        <source>TRIG POS</source>
        <translation>TRIG POS</translation>
    </message>
    <message>
        <source>TRIG NEG</source>
        <translation>TRIG NEG</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>inch</translation>
    </message>
    <message>
        <source>feet</source>
        <translation>feet</translation>
    </message>
    <message>
        <source>yard</source>
        <translation>yard</translation>
    </message>
    <message>
        <source>Unknown failure.</source>
        <translation>Unknown failure.</translation>
    </message>
    <message>
        <source>File read failed.</source>
        <translation>File read failed.</translation>
    </message>
    <message>
        <source>File write failed.</source>
        <translation>File write failed.</translation>
    </message>
    <message>
        <source>%1 is invalid.</source>
        <translation>%1 is invalid.</translation>
    </message>
    <message>
        <source>Trigger Parameter</source>
        <translation>Trigger parameter</translation>
    </message>
    <message>
        <source>Input IPAddress</source>
        <translation>Enter three numbers from 0 to 255 for the address.</translation>
    </message>
    <message>
        <source>Batch setting</source>
        <translation>Set on all</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>Searching</translation>
    </message>
    <message>
        <source>Failed getFrequency</source>
        <translation>Failed getFrequency</translation>
    </message>
    <message>
        <source>Failed sync to signal generator</source>
        <translation>Failed sync to signal generator</translation>
    </message>
    <message>
        <source>Could not connect with signal generator</source>
        <translation>Could not connect with signal generator</translation>
    </message>
    <message>
        <source>can not be connected because unsupported device.</source>
        <translation>can not be connected because unsupported device.</translation>
    </message>
    <message>
        <source>Failed to connect to Sync Hub</source>
        <translation>Failed to connect to Sync Hub</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>Syncing</translation>
    </message>
    <message>
        <source>When using the software trigger, please check the wiring of the TRIG IN terminal and enable 'Do not input software trigger to slave camera'</source>
        <translation>When using the software trigger, please check the wiring of the TRIG IN terminal and enable 'Do not input software trigger to slave camera'</translation>
    </message>
    <message>
        <source>Dummy camera can not set synchronization</source>
        <translation>Dummy camera can not set synchronization</translation>
    </message>
    <message>
        <source>The selected camera does not support sync setting</source>
        <translation>The selected camera does not support sync setting</translation>
    </message>
    <message>
        <source>Sync setting is possible only when all cameras are in the same trigger mode.</source>
        <translation>Sync setting is possible only when all cameras are in the same trigger mode.</translation>
    </message>
    <message>
        <source>Synchronization setting is impossible due to the presence of low light camera.</source>
        <translation>Synchronization setting is impossible due to the presence of low light camera.</translation>
    </message>
    <message>
        <source>Since the cameras with different exposure timings are mixed, the trigger mode of the start system can not be used. Consider using manual mode.</source>
        <translation>Since the cameras with different exposure timings are mixed, the trigger mode of the start system can not be used. Consider using manual mode.</translation>
    </message>
    <message>
        <source>Synchronization setting can not be done because there is a dual slope shutter camera.</source>
        <translation>Synchronization setting can not be done because there is a dual slope shutter camera.</translation>
    </message>
    <message>
        <source>Synchronization setting is impossible because there is a camera with automatic exposure control.</source>
        <translation>Synchronization setting is impossible because there is a camera with automatic exposure control.</translation>
    </message>
    <message>
        <source>Synchronise the cameras</source>
        <translation>Synchronise the cameras</translation>
    </message>
    <message>
        <source>Address of the master camera</source>
        <translation>Address of the master camera</translation>
    </message>
    <message>
        <source>Port that the signal comes in by</source>
        <translation>Port that the signal comes in by</translation>
    </message>
    <message>
        <source>Between signal and cameras</source>
        <translation>Between signal and cameras</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nothing</translation>
    </message>
    <message>
        <source>L-PORT</source>
        <translation>L-PORT</translation>
    </message>
    <message>
        <source>Remind of the wiring after a synchronisation</source>
        <translation>Remind of the wiring after a synchronisation</translation>
    </message>
    <message>
        <source>Lock all connected cameras.</source>
        <translation>Lock all connected cameras.</translation>
    </message>
    <message>
        <source>Problem with camera.</source>
        <translation>Problem with camera.</translation>
    </message>
    <message>
        <source>There are some cameras that are not synchronized shooting because the shooting speed of the device is faster than the sync frequency.</source>
        <translation>There are some cameras that are not synchronized shooting because the shooting speed of the device is faster than the sync frequency.</translation>
    </message>
    <message>
        <source>Do you want to save even though playback confirmation has not been completed?</source>
        <translation>Do you want to save even though playback confirmation has not been completed?</translation>
    </message>
    <message>
        <source>%1. The recording ended early with %2 frames.</source>
        <translation>%1. The recording ended early with %2 frames.</translation>
    </message>
    <message>
        <source>%1: the camera has disappeared.</source>
        <translation>%1: the camera has disappeared.</translation>
    </message>
    <message>
        <source>%1: the camera was disconnected.</source>
        <translation>%1: the camera was disconnected.</translation>
    </message>
    <message>
        <source>%1: the camera has left the recording.</source>
        <translation>%1: the camera has left the recording.</translation>
    </message>
    <message>
        <source>%1: the camera records by itself.</source>
        <translation>%1: the camera records by itself.</translation>
    </message>
    <message>
        <source>%1: the camera is not ready.</source>
        <translation>%1: the camera is not ready.</translation>
    </message>
    <message>
        <source>%1: the camera has triggered itself. It records on.</source>
        <translation>%1: the camera has triggered itself. It records on.</translation>
    </message>
    <message>
        <source>Cameras are armed or recording. None was deleted.</source>
        <translation>Cameras are armed or recording. None was deleted.</translation>
    </message>
    <message>
        <source>Its recording is lost.</source>
        <translation>Its recording is lost.</translation>
    </message>
    <message>
        <source>It does not take part in the recording.</source>
        <translation>It does not take part in the recording.</translation>
    </message>
    <message>
        <source>Cancel recording</source>
        <translation>Cancel recording</translation>
    </message>
    <message>
        <source>Disconnect all</source>
        <translation>Disconnect all</translation>
    </message>
    <message>
        <source>Trigger test: the trigger has come. Nothing is recorded.</source>
        <translation>Trigger test: the trigger has come. Nothing is recorded.</translation>
    </message>
    <message>
        <source>%1: no frame of its record area was recorded.</source>
        <translation>%1: no frame of its record area was recorded.</translation>
    </message>
    <message>
        <source>The recording has ended meanwhile. Nothing was done.</source>
        <translation>The recording has ended meanwhile. Nothing was done.</translation>
    </message>
    <message>
        <source>%1: %2 frames</source>
        <translation>%1: %2 frames</translation>
    </message>
    <message>
        <source>%1: %2 frames in partition %3</source>
        <translation>%1: %2 frames in partition %3</translation>
    </message>
    <message>
        <source>Cameras hold images that nobody has saved. Record over them all the same?</source>
        <translation>Cameras hold images that nobody has saved. Record over them all the same?</translation>
    </message>
    <message>
        <source>Cameras hold images that nobody has saved. Close the viewer all the same?</source>
        <translation>Cameras hold images that nobody has saved. Close the viewer all the same?</translation>
    </message>
    <message>
        <source>Ask before images that nobody has saved are lost</source>
        <translation>Ask before images that nobody has saved are lost</translation>
    </message>
    <message>
        <source>%1: %2 frames were erased.</source>
        <translation>%1: %2 frames were erased.</translation>
    </message>
    <message>
        <source>Images that nobody has saved are out of reach until a search:</source>
        <translation>Images that nobody has saved are out of reach until a search:</translation>
    </message>
    <message>
        <source>%1: the camera has disappeared. %2 frames of it are not saved.</source>
        <translation>%1: the camera has disappeared. %2 frames of it are not saved.</translation>
    </message>
    <message>
        <source>%1: the last recording lies in partition %2. It is not saved.</source>
        <translation>%1: the last recording lies in partition %2. It is not saved.</translation>
    </message>
    <message>
        <source>%1 with %2</source>
        <translation>%1 with %2</translation>
    </message>
    <message>
        <source>%1 (earlier recording)</source>
        <translation>%1 (earlier recording)</translation>
    </message>
    <message>
        <source>The recording was ended. The cameras keep what they have; memory mode shows it.</source>
        <translation>The recording was ended. The cameras keep what they have; memory mode shows it.</translation>
    </message>
    <message>
        <source>Cameras are armed or recording. Disconnect all the same?</source>
        <translation>Cameras are armed or recording. Disconnect all the same?</translation>
    </message>
    <message>
        <source>Cameras are armed or recording. Close the viewer all the same?</source>
        <translation>Cameras are armed or recording. Close the viewer all the same?</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>Saving</translation>
    </message>
    <message>
        <source>Video (MP4)</source>
        <translation>Video (MP4)</translation>
    </message>
    <message>
        <source>%1 needs the package qt5-image-formats-plugins.</source>
        <translation>%1 needs the package qt5-image-formats-plugins.</translation>
    </message>
    <message>
        <source>Video needs the program ffmpeg, which is not installed.</source>
        <translation>Video needs the program ffmpeg, which is not installed.</translation>
    </message>
    <message>
        <source>The installed ffmpeg has no encoder for MP4.</source>
        <translation>The installed ffmpeg has no encoder for MP4.</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>First frame</translation>
    </message>
    <message>
        <source>Last frame</source>
        <translation>Last frame</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>%1: %2 frames saved in %3</source>
        <translation>%1: %2 frames saved in %3</translation>
    </message>
    <message>
        <source>%1: camera lost before its first frame, %2 frames not saved (%3)</source>
        <translation>%1: camera lost before its first frame, %2 frames not saved (%3)</translation>
    </message>
    <message>
        <source>%1: camera lost after frame %2, %3 frames not saved (%4)</source>
        <translation>%1: camera lost after frame %2, %3 frames not saved (%4)</translation>
    </message>
    <message>
        <source>%1: %2 can't be written, %3 frames not saved (%4)</source>
        <translation>%1: %2 can't be written, %3 frames not saved (%4)</translation>
    </message>
    <message>
        <source>%1: skipped, %2 frames saved, %3 not</source>
        <translation>%1: skipped, %2 frames saved, %3 not</translation>
    </message>
    <message>
        <source>%1: cancelled, %2 frames saved, %3 not</source>
        <translation>%1: cancelled, %2 frames saved, %3 not</translation>
    </message>
    <message>
        <source>There can't be a folder %1.</source>
        <translation>There can't be a folder %1.</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 are needed, %3 are free.</source>
        <translation>There is not enough space in %1: %2 are needed, %3 are free.</translation>
    </message>
    <message>
        <source>Everything is saved.</source>
        <translation>Everything is saved.</translation>
    </message>
    <message>
        <source>Its recording is not saved.</source>
        <translation>Its recording is not saved.</translation>
    </message>
    <message>
        <source>Files that are in this folder already: %1</source>
        <translation>Files that are in this folder already: %1</translation>
    </message>
    <message>
        <source>New subfolder</source>
        <translation>New subfolder</translation>
    </message>
    <message>
        <source>the camera is gone</source>
        <translation>the camera is gone</translation>
    </message>
    <message>
        <source>the recording is gone</source>
        <translation>the recording is gone</translation>
    </message>
    <message>
        <source>the camera is not connected</source>
        <translation>the camera is not connected</translation>
    </message>
    <message>
        <source>the picture has no such form</source>
        <translation>the picture has no such form</translation>
    </message>
    <message>
        <source>there can't be such a folder</source>
        <translation>there can't be such a folder</translation>
    </message>
    <message>
        <source>Not everything is saved.</source>
        <translation>Not everything is saved.</translation>
    </message>
    <message>
        <source>%1 of %2: %3, frame %4 of %5</source>
        <translation>%1 of %2: %3, frame %4 of %5</translation>
    </message>
    <message>
        <source>Images are being saved already.</source>
        <translation>Images are being saved already.</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>No connected camera has recorded images.</source>
        <translation>No connected camera has recorded images.</translation>
    </message>
    <message>
        <source>%1 exists already.</source>
        <translation>%1 exists already.</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Overwrite</translation>
    </message>
    <message>
        <source>Overwrite all</source>
        <translation>Overwrite all</translation>
    </message>
    <message>
        <source>Skip camera</source>
        <translation>Skip camera</translation>
    </message>
    <message>
        <source>Stop saving? Complete files stay.</source>
        <translation>Stop saving? Complete files stay.</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>Snapshots</translation>
    </message>
    <message>
        <source>%1 can't be written: %2</source>
        <translation>%1 can't be written: %2</translation>
    </message>
    <message>
        <source>There is no image to take.</source>
        <translation>There is no image to take.</translation>
    </message>
    <message>
        <source>No camera offers the shutter speed %1.</source>
        <translation>No camera offers the shutter speed %1.</translation>
    </message>
    <message>
        <source>the whole network</source>
        <translation>the whole network</translation>
    </message>
    <message>
        <source>Search in %1: found %2.</source>
        <translation>Search in %1: found %2.</translation>
    </message>
    <message>
        <source>Search in %1: no further camera; those that answer are listed already.</source>
        <translation>Search in %1: no further camera; those that answer are listed already.</translation>
    </message>
    <message>
        <source>Search in %1: no camera answers.</source>
        <translation>Search in %1: no camera answers.</translation>
    </message>
    <message>
        <source>%1: not done. %2</source>
        <translation>%1: not done. %2</translation>
    </message>
    <message>
        <source>It was pressed twice.</source>
        <translation>It was pressed twice.</translation>
    </message>
    <message>
        <source>It has just changed.</source>
        <translation>It has just changed.</translation>
    </message>
    <message>
        <source>Cameras record in live mode.</source>
        <translation>Cameras record in live mode.</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>No camera is connected.</translation>
    </message>
    <message>
        <source>The cameras wait for their CTS signal.</source>
        <translation>The cameras wait for their CTS signal.</translation>
    </message>
    <message>
        <source>All cameras have failed; cancel the recording first.</source>
        <translation>All cameras have failed; cancel the recording first.</translation>
    </message>
    <message>
        <source>Images are saved in memory mode.</source>
        <translation>Images are saved in memory mode.</translation>
    </message>
    <message>
        <source>only a part of it could be written; the disk may be full</source>
        <translation>only a part of it could be written; the disk may be full</translation>
    </message>
    <message>
        <source>%1: the camera holds images that nobody has saved.</source>
        <translation>%1: the camera holds images that nobody has saved.</translation>
    </message>
    <message>
        <source>%1: the camera has changed to a partition with images that nobody has saved.</source>
        <translation>%1: the camera has changed to a partition with images that nobody has saved.</translation>
    </message>
    <message>
        <source>%1: is armed</source>
        <translation>%1: is armed</translation>
    </message>
    <message>
        <source>%1: records</source>
        <translation>%1: records</translation>
    </message>
    <message>
        <source>%1: %2 frames in partition %3 were erased.</source>
        <translation>%1: %2 frames in partition %3 were erased.</translation>
    </message>
    <message>
        <source>%1: its recording lies in partition %2, and another one is in use.</source>
        <translation>%1: its recording lies in partition %2, and another one is in use.</translation>
    </message>
</context>
</TS>
