# Writes lumora.svc: the word "lumora" and a flourish below it, as a tablet at 133 Hz would have recorded them.
#
#   awk -f make_lumora.awk > lumora.svc
#
# The pen's path is made of cubic curves. Like a hand, the pen slows down where the path bends and leans on the paper on
# its way down. Letters are drawn upright, 100 units high, and slanted at the end.

BEGIN {
    pi = atan2(0, -1)
    Slant = 0.22        # to the right per unit of height
    UnitsPerUnit = 40   # tablet units per drawing unit
    Step = 7.5          # ms between samples: 7 and 8 in turn
    WordPace = 0.72     # drawing units per ms at the mean bend
    pointCount = 0

    Hover(-130, 60,  -70, -10,  -60, -8,  -42, 2)
    Word()
    Hover(lastX, lastY,  lastX + 60, 50,  620, -10,  590, -62)
    Flourish()
    Hover(lastX, lastY,  lastX + 30, lastY + 12,  lastX + 60, lastY + 30,  lastX + 80, lastY + 60)
    Measure()
    Sample()
    Write()
}

function Word(    o) {
    Begin(-42, 2)
    # l: a long loop
    o = 0
    Curve(o + 0, 14,    o + 58, 110,  o + 58, 192)
    Curve(o + 58, 226,  o + 48, 246,  o + 34, 246)
    Curve(o + 12, 246,  o + 8, 206,   o + 8, 160)
    Curve(o + 8, 120,   o + 7, 80,    o + 8, 46)
    Curve(o + 9, 16,    o + 22, 0,    o + 38, 0)
    Curve(o + 62, 0,    o + 84, 46,   o + 94, 98)
    # u: two strokes down, each with a round turn
    o = 94
    Curve(o - 1, 70,    o - 3, 50,    o - 2, 34)
    Curve(o - 1, 12,    o + 10, 0,    o + 24, 0)
    Curve(o + 46, 0,    o + 66, 48,   o + 73, 98)
    Curve(o + 72, 70,   o + 70, 50,   o + 71, 34)
    Curve(o + 72, 12,   o + 82, 0,    o + 94, 0)
    Curve(o + 112, 0,   o + 122, 40,  o + 132, 68)
    # m: three arches
    o = 226
    Curve(o + 8, 90,    o + 16, 101,  o + 25, 101)
    Curve(o + 36, 101,  o + 38, 84,   o + 37, 66)
    Curve(o + 36, 44,   o + 34, 22,   o + 33, 2)
    Curve(o + 36, 44,   o + 54, 101,  o + 76, 101)
    Curve(o + 88, 101,  o + 90, 84,   o + 89, 66)
    Curve(o + 88, 44,   o + 86, 22,   o + 85, 2)
    Curve(o + 88, 44,   o + 106, 101, o + 128, 101)
    Curve(o + 141, 101, o + 142, 84,  o + 140, 64)
    Curve(o + 139, 50,  o + 137, 42,  o + 137, 32)
    Curve(o + 137, 12,  o + 146, 0,   o + 160, 0)
    Curve(o + 188, 0,   o + 214, 98,  o + 254, 98)
    # o: back round to the left, closed by a small loop at the top
    o = 440
    Curve(o + 18, 104,  o - 2, 78,    o - 2, 46)
    Curve(o - 2, 16,    o + 14, -1,   o + 38, -1)
    Curve(o + 66, -1,   o + 82, 24,   o + 82, 52)
    Curve(o + 82, 82,   o + 66, 102,  o + 50, 98)
    Curve(o + 38, 94,   o + 46, 78,   o + 66, 78)
    Curve(o + 88, 78,   o + 104, 86,  o + 114, 108)
    # r: a knot at the shoulder, then down
    o = 554
    Curve(o + 4, 98,    o + 12, 92,   o + 26, 92)
    Curve(o + 46, 92,   o + 42, 70,   o + 40, 50)
    Curve(o + 38, 22,   o + 40, 0,    o + 60, 0)
    Curve(o + 88, 0,    o + 112, 96,  o + 156, 96)
    # a: a bowl, then the last stroke down and out
    o = 646
    Curve(o + 36, 100,  o + 2, 84,    o + 0, 44)
    Curve(o - 1, 16,    o + 12, -1,   o + 32, -1)
    Curve(o + 58, -1,   o + 78, 46,   o + 82, 96)
    Curve(o + 80, 66,   o + 78, 48,   o + 79, 32)
    Curve(o + 80, 10,   o + 92, 0,    o + 106, 0)
    Curve(o + 132, 0,   o + 152, 26,  o + 172, 58)
}

function Flourish() {
    Begin(590, -62)
    Curve(430, -40,  180, -44,  20, -74)
    Curve(-34, -84,  -50, -104, -18, -110)
    Curve(60, -124,  420, -70,  800, -84)
}

function Begin(x, y) { lastX = x; lastY = y; penDown = 1 }

function Hover(x0, y0, x1, y1, x2, y2, x3, y3) {
    lastX = x0; lastY = y0; penDown = 0
    Curve(x1, y1, x2, y2, x3, y3)
}

# A cubic from the last point on, as a chain of short steps.
function Curve(x1, y1, x2, y2, x3, y3,    i, t, s, x0, y0) {
    x0 = lastX; y0 = lastY
    for (i = 1; i <= 60; i++) {
        t = i / 60; s = 1 - t
        pointX[pointCount] = s * s * s * x0 + 3 * s * s * t * x1 + 3 * s * t * t * x2 + t * t * t * x3
        pointY[pointCount] = s * s * s * y0 + 3 * s * s * t * y1 + 3 * s * t * t * y2 + t * t * t * y3
        pointX[pointCount] += Slant * pointY[pointCount]
        pointDown[pointCount] = penDown
        pointCount++
    }
    lastX = x3; lastY = y3
}

function Between(value, low, high) { return value < low ? low : value > high ? high : value }

# When the pen passes each point: speed falls with the bend of the path, by the law that hands follow.
function Measure(    i, j, dx, dy, turn, reach, bend, speed) {
    pointTime[0] = 0
    for (i = 1; i < pointCount; i++) {
        dx = pointX[i] - pointX[i - 1]; dy = pointY[i] - pointY[i - 1]
        pointLength[i] = sqrt(dx * dx + dy * dy)
        pointHeading[i] = atan2(dy, dx)
    }
    for (i = 1; i < pointCount; i++) {
        turn = 0; reach = 0.001
        for (j = i - 5; j <= i + 5; j++) {
            if (j < 2 || j >= pointCount) continue
            dx = pointHeading[j] - pointHeading[j - 1]
            if (dx > pi) dx -= 2 * pi
            if (dx < -pi) dx += 2 * pi
            turn += dx < 0 ? -dx : dx
            reach += pointLength[j]
        }
        bend = Between(turn / reach, 0.002, 0.4)
        speed = WordPace * exp(log(0.03 / bend) / 3)
        if (!pointDown[i]) speed *= 1.3
        pointTime[i] = pointTime[i - 1] + pointLength[i] / speed
    }
}

# Walks along the points at the tablet's rate.
function Sample(    i, clock, part, endTime) {
    i = 1; sampleCount = 0; endTime = pointTime[pointCount - 1]
    for (clock = 0; clock <= endTime; clock += Step) {
        while (i < pointCount - 1 && pointTime[i] < clock) i++
        part = (clock - pointTime[i - 1]) / (pointTime[i] - pointTime[i - 1] + 0.000001)
        sampleX[sampleCount] = pointX[i - 1] + part * (pointX[i] - pointX[i - 1])
        sampleY[sampleCount] = pointY[i - 1] + part * (pointY[i] - pointY[i - 1])
        sampleDown[sampleCount] = pointDown[i]
        sampleTime[sampleCount] = 1000 + int(clock)
        sampleCount++
    }
}

# The hand's weight follows the direction slowly; a stroke sets down and lifts off over some samples.
function Pressure(i,    down, dx, dy, length_, j, edge) {
    if (!sampleDown[i]) { weight = 0.45; return 0 }
    dx = sampleX[i] - sampleX[i - 1]; dy = sampleY[i] - sampleY[i - 1]
    length_ = sqrt(dx * dx + dy * dy) + 0.001
    down = -dy / length_
    weight += 0.3 * (0.5 + 0.34 * down - weight)
    edge = 12
    for (j = 1; j <= 12; j++) {
        if (!sampleDown[i - j] || !sampleDown[i + j]) { edge = j - 1; break }
    }
    return int(32767 * weight * sin((edge + 1.5) / 13.5 * pi / 2))
}

function Write(    i) {
    print "# The word \"lumora\" in joined-up handwriting with a flourish, generated by make_lumora.awk."
    print "# Cubic curves at hand speed, 133 Hz; tablet units, y upwards, pressure 0 to 32767."
    print sampleCount
    for (i = 0; i < sampleCount; i++) {
        printf "%d %d %d %d %d %d %d\n", 10000 + UnitsPerUnit * sampleX[i], 8000 + UnitsPerUnit * sampleY[i],
            sampleTime[i], sampleDown[i], 1350, 600 + 40 * sin(i / 90), Pressure(i)
    }
}
