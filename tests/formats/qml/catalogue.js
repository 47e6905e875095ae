.pragma library

/*! A preset map as the host's utility library delivers it; \a changes replace values by key. */
function video(id, title, changes) {
    const preset = {
        "id": id,
        "title": title,
        "extension": "mp4",
        "videoParam": {
            "encoder": "h264", "bitrateKbps": 4000, "frameRate": 30, "resolution": "1280x720"
        },
        "videoOptions": {
            "encoderList": ["0", "h264", "hevc"],
            "bitrateKbpsList": [0, 1000, 2000, 4000, 8000],
            "frameRateList": [0, 24, 29.97, 30],
            "resolutionList": ["0", "1920x1080", "1280x720"],
            "levelList": [8000, 4000, 2000]
        },
        "audioParam": { "channel": 2, "encoder": "aac", "bitrateKbps": 128, "sampleRate": 44100 },
        "audioOptions": {
            "channelList": [0, 1, 2],
            "encoderList": ["0", "aac", "mp3"],
            "bitrateKbpsList": [0, 128, 256],
            "sampleRateList": [0, 44100, 48000]
        }
    }
    for (const block in changes) {
        preset[block] = Object.assign({}, preset[block], changes[block])
    }
    return preset
}

function audio(id, title, changes) {
    const preset = video(id, title, changes)
    delete preset.videoParam
    delete preset.videoOptions
    return preset
}

function group(name, icon, contents) {
    return { "map": { "name": name, "icon": icon }, "contents": contents }
}

function source(id) {
    return video(id, "Same as source", {
        "videoParam": { "encoder": "0", "resolution": "0", "bitrateKbps": 0, "frameRate": 0 },
        "audioParam": { "encoder": "0", "channel": 0, "bitrateKbps": 0, "sampleRate": 0 }
    })
}

/*! More formats and more MP4 presets than fit the lists. */
function sample() {
    const mp4 = [source("Video_MP4_001")]
    for (const title of ["4K", "2K", "HD 1080P", "HD 720P", "SD 576P", "SD 480P", "SD 360P"]) {
        mp4.push(video("Video_MP4_00" + (mp4.length + 1), title))
    }
    const others = ["MOV", "MKV", "AVI", "WEBM", "WMV", "MPG", "FLV", "3GP", "VOB"]
    return [
        {
            "category": "Video",
            "groups": [group("MP4", "fmt_mp4", mp4)].concat(others.map(function (name) {
                return group(name, "fmt_" + name.toLowerCase(), [source("Video_" + name + "_001")])
            }))
        },
        {
            "category": "Audio",
            "groups": [
                group("MP3", "fmt_mp3", [
                    audio("Audio_MP3_001", "Same as source", {
                        "audioParam": { "encoder": "0", "bitrateKbps": 0 }
                    }),
                    audio("Audio_MP3_002", "High Quality", { "audioParam": { "encoder": "mp3" } })
                ]),
                group("AAC", "fmt_aac", [audio("Audio_AAC_001", "High Quality")])
            ]
        },
        {
            "category": "Device",
            "groups": [group("Apple", "fmt_apple", [video("Device_Apple_001", "iPhone HD 720P")])]
        },
        {
            "category": "SocialVideo",
            "groups": [group("YouTube", "fmt_youtube", [video("SocialVideo_YouTube_001", "4K")])]
        }
    ]
}

/*! The same with a preset "Own_001" whose format carries the tag of the recently-used list. */
function sampleWithTagRecently() {
    return sample().concat([{
        "category": "Recently", "groups": [group("Own", "fmt_mp4", [video("Own_001", "Own")])]
    }])
}
