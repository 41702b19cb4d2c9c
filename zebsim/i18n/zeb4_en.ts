<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>zeb4</name>
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
        <source>search</source>
        <translation>Search</translation>
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
        <source>Sync execute</source>
        <translation>Synchronise</translation>
    </message>
    <message>
        <source>Batch Lowlight</source>
        <translation>Low light, all</translation>
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
        <source>Waiting For CTS Signal</source>
        <translation>Waiting for CTS</translation>
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
        <source>Connecting</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>Disconnecting...</translation>
    </message>
    <message>
        <source>Shooting speed</source>
        <translation>Frame rate</translation>
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
        <source>p_lut</source>
        <translation>Tone curve</translation>
    </message>
    <message>
        <source>p_filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>p_mosaic</source>
        <translation>Mosaic</translation>
    </message>
    <message>
        <source>Please attach preserved file to a mail.</source>
        <translation>Please attach the saved file to a mail.</translation>
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
        <source>Trigger Parameter</source>
        <translation>Trigger parameter</translation>
    </message>
    <message>
        <source>End frame must always be greater than the Start frame.</source>
        <translation>The last frame must not be before the first.</translation>
    </message>
    <message>
        <source>Input IPAddress</source>
        <translation>The address is not whole: each of its numbers is one from 0 to 255, the last at least 1, and at most 254 in 192.168.</translation>
    </message>
    <message>
        <source>Batch setting</source>
        <translation>Set on all</translation>
    </message>
    <message>
        <source>s_alert</source>
        <translation>Alerts</translation>
    </message>
    <message>
        <source>input %1</source>
        <translation>Input: %1</translation>
    </message>
    <message>
        <source>wren_display_frameRate</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>wren_display_shutterSpeed</source>
        <translation>Shutter speed</translation>
    </message>
    <message>
        <source>wren_display_resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>wren_display_recordedFrameRate</source>
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>wren_display_recordedStartFrame</source>
        <translation>First frame</translation>
    </message>
    <message>
        <source>wren_display_recordedEndFrame</source>
        <translation>Last frame</translation>
    </message>
    <message>
        <source>wren_display_cameraSettings</source>
        <translation>Camera settings</translation>
    </message>
    <message>
        <source>wren_display_alert</source>
        <translation>Alerts</translation>
    </message>
    <message>
        <source>wren_display_lock</source>
        <translation>Lock</translation>
    </message>
    <message>
        <source>wren_display_syncStatus</source>
        <translation>Sync</translation>
    </message>
    <message>
        <source>wren_display_triggerMode</source>
        <translation>Trigger mode</translation>
    </message>
    <message>
        <source>wren_display_reduceMode</source>
        <translation>Live speed</translation>
    </message>
    <message>
        <source>wren_display_syncTab</source>
        <translation>Tab Sync</translation>
    </message>
    <message>
        <source>wren_display_irigTab</source>
        <translation>Tab IRIG</translation>
    </message>
    <message>
        <source>wren_display_pluginTab</source>
        <translation>Tab Tools</translation>
    </message>
    <message>
        <source>wren_display_memoryPluginTab</source>
        <translation>Tab Memory tools</translation>
    </message>
    <message>
        <source>wren_display_recordCheck</source>
        <translation>Checked</translation>
    </message>
    <message>
        <source>wren_display_triggerOffset</source>
        <translation>Trigger offset</translation>
    </message>
    <message>
        <source>p_pseudo</source>
        <translation>Pseudo colour</translation>
    </message>
    <message>
        <source>s_save</source>
        <translation>Saving</translation>
    </message>
</context>
</TS>
