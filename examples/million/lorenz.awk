# A million steps of the Lorenz system, as a table: the step and x. Midpoint rule, 0.0002 a step.
# E. N. Lorenz, Journal of the Atmospheric Sciences 20 (1963) 130.
function dx(x, y) { return 10 * (y - x) }
function dy(x, y, z) { return x * (28 - z) - y }
function dz(x, y, z) { return x * y - z * 8 / 3 }
BEGIN {
  h = 0.0002
  x = 1; y = 1; z = 1
  print "step,x"
  for (i = 0; i < 1000000; ++i) {
    printf "%d,%.4f\n", i, x
    u = x + h / 2 * dx(x, y)
    v = y + h / 2 * dy(x, y, z)
    w = z + h / 2 * dz(x, y, z)
    x += h * dx(u, v); y += h * dy(u, v, w); z += h * dz(u, v, w)
  }
}
